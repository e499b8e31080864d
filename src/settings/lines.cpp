#include "settings/lines.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace quillfen {

std::optional<std::string_view> LineCursor::next()
{
    if (m_rest.empty())
        return std::nullopt;
    const auto end = m_rest.find_first_of("\r\n");
    if (end == std::string_view::npos) {
        const auto last = m_rest;
        m_rest = {};
        return last;
    }
    const auto line = m_rest.substr(0, end);
    const bool pair = m_rest.substr(end, 2) == "\r\n";
    m_rest.remove_prefix(end + (pair ? 2 : 1));
    return line;
}

SplitLine splitOnce(std::string_view line, char separator)
{
    const auto at = line.find(separator);
    if (at == std::string_view::npos)
        return {line, {}, false};
    return {line.substr(0, at), line.substr(at + 1), true};
}

SplitLine splitInPieces(std::string_view line, char separator)
{
    SplitLine split = splitOnce(line, separator);
    split.right = split.right.substr(0, split.right.find(separator));
    return split;
}

std::string_view trimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
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
