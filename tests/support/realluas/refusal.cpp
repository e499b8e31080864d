// Built once for each version of Lua: QUILLFEN_REFUSAL is the function's name.
#include "support/realluas/refusal.h"

#include <filesystem>
#include <fstream>
#include <lua.hpp>
#include <memory>
#include <random>
#include <stdexcept>

namespace quillfen::test {
namespace {

/// A file for the life of the process.
class Scratch
{
public:
    Scratch()
        : m_path(std::filesystem::temp_directory_path() /
                 ("quillfen-" + std::to_string(std::random_device()()) + ".tbl"))
    {
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    ~Scratch()
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }

    std::string holding(const std::string& bytes) const
    {
        std::ofstream file(m_path, std::ios::binary);
        if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush())
            throw std::runtime_error("can't write " + m_path.string());
        return m_path.string();
    }

private:
    std::filesystem::path m_path;
};

/// Whether a file begins with what Lua passes over, or takes for a program, in files alone.
bool hasFileHead(const std::string& bytes)
{
    return bytes.starts_with('#') || bytes.starts_with('\xEF') || bytes.starts_with('\x1B');
}

int load(lua_State* lua, const std::string& bytes)
{
    static const Scratch scratch;
    return hasFileHead(bytes) ? luaL_loadfile(lua, scratch.holding(bytes).c_str())
                              : luaL_loadbuffer(lua, bytes.data(), bytes.size(), "file");
}

void stop(lua_State* lua, lua_Debug* /*where*/)
{
    luaL_error(lua, "takes too long");
}

/// The loaded chunk's globals become a table of their own.
void closeIn(lua_State* lua)
{
    lua_newtable(lua);
#if LUA_VERSION_NUM > 501
    lua_setupvalue(lua, -2, 1);
#else
    lua_setfenv(lua, -2);
#endif
}

} // namespace

std::optional<std::string> QUILLFEN_REFUSAL(const std::string& bytes)
{
    constexpr int steps = 10'000'000;
    const std::unique_ptr<lua_State, decltype(&lua_close)> lua(luaL_newstate(), &lua_close);
    lua_sethook(lua.get(), stop, LUA_MASKCOUNT, steps);
    if (load(lua.get(), bytes) != 0)
        return lua_tostring(lua.get(), -1);
    closeIn(lua.get());
    if (lua_pcall(lua.get(), 0, 0, 0) != 0)
        return lua_tostring(lua.get(), -1);
    return std::nullopt;
}

} // namespace quillfen::test
