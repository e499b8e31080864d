#pragma once

#include <filesystem>
#include <string>

namespace quillfen {

/// A path of ours, which is UTF-8 with slashes, as the platform has it; and back.
inline std::filesystem::path nativePath(const std::string& path)
{
    return {std::u8string(path.begin(), path.end())};
}

inline std::string pathText(const std::filesystem::path& path)
{
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

} // namespace quillfen
