#include "settings/lines.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace quillfen {

SplitLine splitInPieces(std::string_view line, char separator)
{
    SplitLine split = splitOnce(line, separator);
    split.right = split.right.substr(0, split.right.find(separator));
    return split;
}

double leadingNumber(std::string_view text)
{
    text = trimBlanks(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return std::isfinite(number) ? number : 0;
}

std::optional<double> wholeNumber(std::string_view text)
{
    text = trimBlanks(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

bool isOne(std::string_view text)
{
    return wholeNumber(text) == 1.0;
}

} // namespace quillfen
