#include "support/lua.h"

#include <lua.hpp>
#include <memory>
#include <stdexcept>

namespace quillfen::test {
namespace {

std::string keyText(lua_State* lua, int index)
{
    lua_pushvalue(lua, index); // lua_tostring would turn a number key into a string under lua_next's feet
    std::size_t length = 0;
    const char* bytes = lua_tolstring(lua, -1, &length);
    std::string text(bytes, length);
    lua_pop(lua, 1);
    return text;
}

/// Takes the values of the table on top of the stack.
void flatten(lua_State* lua, const std::string& prefix, LuaValues& values)
{
    bool empty = true;
    lua_pushnil(lua);
    while (lua_next(lua, -2) != 0) {
        empty = false;
        const std::string name = prefix + keyText(lua, -2);
        if (lua_istable(lua, -1))
            flatten(lua, name + ".", values);
        else
            values[name] = keyText(lua, -1);
        lua_pop(lua, 1);
    }
    if (empty && !prefix.empty())
        values[prefix.substr(0, prefix.size() - 1)] = "{}";
}

} // namespace

LuaValues luaValues(const std::string& bytes)
{
    const std::unique_ptr<lua_State, decltype(&lua_close)> lua(luaL_newstate(), &lua_close);
    if (luaL_loadbuffer(lua.get(), bytes.data(), bytes.size(), "file") != 0)
        throw std::runtime_error(lua_tostring(lua.get(), -1));
    lua_newtable(lua.get()); // the file's globals, in a table of their own
    lua_pushvalue(lua.get(), -1);
    lua_setfenv(lua.get(), -3);
    lua_insert(lua.get(), 1);
    if (lua_pcall(lua.get(), 0, 0, 0) != 0)
        throw std::runtime_error(lua_tostring(lua.get(), -1));
    LuaValues values;
    flatten(lua.get(), "", values);
    return values;
}

} // namespace quillfen::test
