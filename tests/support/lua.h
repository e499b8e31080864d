#pragma once

#include <map>
#include <string>

namespace quillfen::test {

/// A table's values as the hub script sees them: "tSwitches.bMute" or "tFile.tEnabledProfiles.-1" with the
/// value's text; an empty table has the value "{}".
using LuaValues = std::map<std::string, std::string>;

/// Loads a file's bytes with Lua 5.1 and gives all global tables that it made. Throws std::runtime_error with
/// Lua's words if it doesn't load.
LuaValues luaValues(const std::string& bytes);

} // namespace quillfen::test
