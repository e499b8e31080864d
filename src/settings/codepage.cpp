#include "settings/codepage.h"

#include <algorithm>
#include <array>

namespace quillfen::codepage {
namespace {

constexpr unsigned char firstSpecial = 0x80;

constexpr std::array<char32_t, 32> specials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool isSpecial(char32_t value)
{
    return value >= firstSpecial && value < firstSpecial + specials.size();
}

} // namespace

char32_t toUnicode(unsigned char byte)
{
    return isSpecial(byte) ? specials[static_cast<std::size_t>(byte - firstSpecial)] : byte;
}

std::optional<unsigned char> fromUnicode(char32_t character)
{
    const auto* const special = std::find(specials.begin(), specials.end(), character);
    if (special != specials.end())
        return static_cast<unsigned char>(firstSpecial + (special - specials.begin()));
    if (character > 0xFF || isSpecial(character))
        return std::nullopt;
    return static_cast<unsigned char>(character);
}

std::string toUtf8(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const char32_t character = toUnicode(static_cast<unsigned char>(byte));
        if (character < 0x80) {
            text += static_cast<char>(character);
        } else if (character < 0x800) {
            text += static_cast<char>(0xC0 | (character >> 6));
            text += static_cast<char>(0x80 | (character & 0x3F));
        } else {
            text += static_cast<char>(0xE0 | (character >> 12));
            text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
            text += static_cast<char>(0x80 | (character & 0x3F));
        }
    }
    return text;
}

} // namespace quillfen::codepage
