#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillfen {

/// The line limit of the readers that keep one.
inline constexpr std::size_t lineLimit = 5000;

/// Walks the lines of a file's bytes. CR LF, LF and CR each end a line; a last line without an end counts.
class LineCursor
{
public:
    explicit LineCursor(std::string_view bytes) : m_rest(bytes) {}

    /// The next line without its end; nothing at the end of the file.
    std::optional<std::string_view> next();

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
SplitLine splitOnce(std::string_view line, char separator);

/// Splits at every separator and keeps the first two pieces.
SplitLine splitInPieces(std::string_view line, char separator);

/// Without the blanks at both ends.
std::string_view trimBlanks(std::string_view text);

/// The number that a text begins with, blanks aside; 0 if it begins with none.
double leadingNumber(std::string_view text);

/// The number that the whole text is, blanks aside; nothing if it is none.
std::optional<double> wholeNumber(std::string_view text);

/// Whether a text is a number whose value is exactly 1 ("1", " 1 ", "1.0", "+1").
bool isOne(std::string_view text);

} // namespace quillfen
