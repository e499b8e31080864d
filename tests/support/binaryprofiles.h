#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Composes the profile file of today's hubs, whole or with what it should not hold.
namespace quillfen::test {

inline std::string bigEndian(std::uint64_t number, int bytes)
{
    std::string text;
    for (int byte = bytes - 1; byte >= 0; --byte)
        text += static_cast<char>((number >> (8 * byte)) & 0xFF);
    return text;
}

inline std::string valueOf(const std::string& name, const std::string& data)
{
    return bigEndian(4 + data.size(), 2) + name + data;
}

inline std::string itemOf(const std::string& values)
{
    return bigEndian(4 + values.size(), 4) + values;
}

inline std::string headerItem()
{
    return itemOf(valueOf("FI", "PtokaX Profiles") + valueOf("FV", bigEndian(1, 4)));
}

/// A profile with flags before and behind its name.
inline std::string profileItem(const std::string& name)
{
    return itemOf(valueOf("P1", "1") + valueOf("PN", name) + valueOf("P2", ""));
}

inline std::string binaryProfiles(const std::vector<std::string>& names)
{
    std::string bytes = headerItem();
    for (const std::string& name : names)
        bytes += profileItem(name);
    return bytes;
}

} // namespace quillfen::test
