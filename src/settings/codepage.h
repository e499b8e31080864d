#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Windows-1252, the code page of every file that the hub script reads.
/// Its five undefined bytes stand for the control characters of the same number, so that each of the 256 byte
/// values has exactly one character and comes back unchanged.
namespace quillfen::codepage {

/// The Unicode character of a code page byte.
char32_t toUnicode(unsigned char byte);

/// The byte of a Unicode character; nothing if the code page does not have it.
std::optional<unsigned char> fromUnicode(char32_t character);

/// The same text in UTF-8, as file systems want their names.
std::string toUtf8(std::string_view bytes);

/// A UTF-8 text in the code page; nothing if it isn't UTF-8 or has a character that the code page lacks.
std::optional<std::string> fromUtf8(std::string_view text);

/// The same text in lower case: the letters of the code page, and only those, change.
std::string lowered(std::string_view text);

/// The same in upper case.
std::string raised(std::string_view text);

} // namespace quillfen::codepage
