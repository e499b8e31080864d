#include "settings/filename.h"

#include <algorithm>

namespace quillfen {
namespace {

constexpr std::size_t longestName = 200; // leaves room for a folder and an extension in every file system

constexpr std::string_view devices[] = {"con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4",
                                        "com5", "com6", "com7", "com8", "com9", "lpt1", "lpt2", "lpt3",
                                        "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"};

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

std::string fileNameFault(std::string_view name)
{
    if (name.empty())
        return "A file needs a name.";
    if (name.size() > longestName)
        return "The name is too long.";
    if (name.find_first_of("\\/:*?\"<>|") != std::string_view::npos)
        return "A file name can't hold any of \\ / : * ? \" < > |";
    if (std::any_of(name.begin(), name.end(),
                    [](char each) { return static_cast<unsigned char>(each) < 0x20; }))
        return "A file name can't hold control characters.";
    if (name.starts_with(' ') || name.ends_with(' ') || name.ends_with('.'))
        return "A file name can't begin or end with a blank, or end with a dot.";
    const std::string stem = lowered(name.substr(0, name.find('.')));
    if (std::find(std::begin(devices), std::end(devices), stem) != std::end(devices))
        return "The name is one of the system's devices.";
    return {};
}

} // namespace quillfen
