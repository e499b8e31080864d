#include "settings/binaryprofiles.h"

#include <cstdint>
#include <map>

namespace quillfen {
namespace {

constexpr std::string_view title = "PtokaX Profiles";
constexpr std::size_t letters = 2; ///< of a value's name

std::uint64_t number(std::string_view bytes)
{
    std::uint64_t value = 0;
    for (const char byte : bytes)
        value = value * 256 + static_cast<unsigned char>(byte);
    return value;
}

/// Takes the first of what is left: all behind its size, of so many bytes, which counts itself. Nothing if
/// the size is too small or too large for what is there.
std::optional<std::string_view> takeSized(std::string_view& rest, std::size_t sizeBytes)
{
    if (rest.size() < sizeBytes)
        return std::nullopt;
    const auto size = number(rest.substr(0, sizeBytes));
    if (size < sizeBytes || size > rest.size())
        return std::nullopt;
    const auto taken = rest.substr(sizeBytes, static_cast<std::size_t>(size) - sizeBytes);
    rest.remove_prefix(static_cast<std::size_t>(size));
    return taken;
}

using Values = std::map<std::string_view, std::string_view>;

/// An item's values by their names, the first of each; nothing if the item is damaged.
std::optional<Values> valuesOf(std::optional<std::string_view> item)
{
    if (!item)
        return std::nullopt;
    Values values;
    while (!item->empty()) {
        const auto value = takeSized(*item, 2);
        if (!value || value->size() < letters)
            return std::nullopt;
        values.emplace(value->substr(0, letters), value->substr(letters));
    }
    return values;
}

bool isHeader(const Values& values)
{
    const auto what = values.find("FI");
    const auto version = values.find("FV");
    return what != values.end() && what->second == title && version != values.end() &&
           version->second.size() == 4 && number(version->second) >= 1;
}

} // namespace

std::optional<std::vector<std::string>> binaryProfileNames(std::string_view bytes)
{
    const auto header = valuesOf(takeSized(bytes, 4));
    if (!header || !isHeader(*header))
        return std::nullopt;
    std::vector<std::string> names;
    while (!bytes.empty()) {
        const auto profile = valuesOf(takeSized(bytes, 4));
        if (!profile)
            return std::nullopt;
        const auto name = profile->find("PN");
        if (name == profile->end() || name->second.empty()) // it would move all profiles behind it
            return std::nullopt;
        names.emplace_back(name->second);
    }
    return names;
}

} // namespace quillfen
