#pragma once

#include <optional>
#include <string>

namespace quillfen::test {

/// Loads a file's bytes as that version of Lua loads a file, and runs them where nothing but their own names
/// is known. Lua's words if it refuses them, "takes too long" if they don't come to an end.
std::optional<std::string> lua51Refusal(const std::string& bytes);
std::optional<std::string> lua53Refusal(const std::string& bytes);

} // namespace quillfen::test
