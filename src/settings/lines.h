#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillfen {

/// The line limit of the readers that keep one.
inline constexpr std::size_t lineLimit = 5000;

/// The line end of every file that is written.
inline constexpr std::string_view lineEnd = "\r\n";

/// Walks the lines of a file's bytes. CR LF, LF and CR each end a line; a last line without an end counts.
class LineCursor
{
public:
    explicit LineCursor(std::string_view bytes) : m_rest(bytes) {}

    /// The next line without its end; nothing at the end of the file. Inline, as a rebuild reads tens of
    /// thousands of short lines.
    std::optional<std::string_view> next()
    {
        if (m_rest.empty())
            return std::nullopt;
        const char* const begin = m_rest.data();
        const char* const last = begin + m_rest.size();
        const char* end = begin;
        while (end != last && *end != '\r' && *end != '\n')
            ++end;
        const char* next = end;
        if (next != last && *next++ == '\r' && next != last && *next == '\n')
            ++next;
        m_rest = {next, static_cast<std::size_t>(last - next)};
        return std::string_view(begin, static_cast<std::size_t>(end - begin));
    }

private:
    std::string_view m_rest;
};

/// The two sides of a line, split at its first separator; `found` tells whether there was one.
struct SplitLine
{
    std::string_view left;
    std::string_view right;
    bool found;
};

/// Splits at the first separator only: the right side may hold more of them.
inline SplitLine splitOnce(std::string_view line, char separator)
{
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == separator)
            return {line.substr(0, at), line.substr(at + 1), true};
    }
    return {line, {}, false};
}

/// Splits at every separator and keeps the first two pieces.
SplitLine splitInPieces(std::string_view line, char separator);

/// Without the blanks at both ends.
inline std::string_view trimBlanks(std::string_view text)
{
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

/// The number that a text begins with, blanks aside; 0 if it begins with none.
double leadingNumber(std::string_view text);

/// The number that the whole text is, blanks aside; nothing if it is none.
std::optional<double> wholeNumber(std::string_view text);

/// Whether a text is a number whose value is exactly 1 ("1", " 1 ", "1.0", "+1").
bool isOne(std::string_view text);

} // namespace quillfen
