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

/// How many bytes follow the first one of a UTF-8 character; nothing if none can begin so. The code page has
/// no character of four bytes.
std::optional<std::size_t> followers(unsigned char first)
{
    if (first < 0x80)
        return 0;
    if (first >= 0xC2 && first < 0xE0)
        return 1;
    if (first >= 0xE0 && first < 0xF0)
        return 2;
    return std::nullopt;
}

/// Takes one character off the front of a UTF-8 text.
std::optional<char32_t> takeCharacter(std::string_view& text)
{
    const auto first = static_cast<unsigned char>(text.front());
    const auto count = followers(first);
    if (!count || text.size() <= *count)
        return std::nullopt;
    char32_t character = first;
    if (*count > 0)
        character &= 0x3FU >> *count;
    for (const char each : text.substr(1, *count)) {
        const auto byte = static_cast<unsigned char>(each);
        if ((byte & 0xC0) != 0x80)
            return std::nullopt;
        character = character << 6 | (byte & 0x3F);
    }
    if (*count == 2 && character < 0x800) // a character longer than it need be is none
        return std::nullopt;
    text.remove_prefix(*count + 1);
    return character;
}

/// The letters beyond ASCII whose other case lies 32 places on: À to Þ and à to þ, but for × and ÷.
bool isAccentedCapital(unsigned char byte)
{
    return byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
}

unsigned char lowerByte(unsigned char byte)
{
    if ((byte >= 'A' && byte <= 'Z') || isAccentedCapital(byte))
        return static_cast<unsigned char>(byte + 32);
    switch (byte) {
    case 0x8A: // S with caron
    case 0x8C: // OE
    case 0x8E: // Z with caron
        return static_cast<unsigned char>(byte + 16);
    case 0x9F: // Y with diaeresis
        return 0xFF;
    default:
        return byte;
    }
}

unsigned char upperByte(unsigned char byte)
{
    for (int other = 0; other < 256; ++other) {
        const auto capital = static_cast<unsigned char>(other);
        if (capital != byte && lowerByte(capital) == byte)
            return capital;
    }
    return byte;
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

std::optional<std::string> fromUtf8(std::string_view text)
{
    std::string bytes;
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        const auto byte = character ? fromUnicode(*character) : std::nullopt;
        if (!byte)
            return std::nullopt;
        bytes += static_cast<char>(*byte);
    }
    return bytes;
}

std::string lowered(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char each) { return static_cast<char>(lowerByte(static_cast<unsigned char>(each))); });
    return result;
}

std::string raised(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char each) { return static_cast<char>(upperByte(static_cast<unsigned char>(each))); });
    return result;
}

} // namespace quillfen::codepage
