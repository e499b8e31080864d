#include "settings/tabletrim.h"

namespace quillfen {
namespace {

constexpr bool isDelimiter(char character)
{
    return character == '\t' || character == '"' || character == ',' || character == ' ';
}

/// Strips delimiters behind a text, and with them a bracket if one is named.
std::string_view withoutBack(std::string_view text, char bracket = ' ')
{
    while (!text.empty() && (isDelimiter(text.back()) || text.back() == bracket))
        text.remove_suffix(1);
    return text;
}

} // namespace

std::string_view trimmedTableKey(std::string_view text)
{
    for (;;) {
        if (text.starts_with('[') && text.substr(1, 2) == "\"[") // a key with a leading bracket of its own
            text = text.size() > 3 ? text.substr(2, text.size() - 3) : std::string_view();
        else if (!text.empty() && (isDelimiter(text.front()) || text.front() == '['))
            text.remove_prefix(1);
        else
            return withoutBack(text, ']');
    }
}

std::string_view trimmedTableValue(std::string_view text)
{
    while (!text.empty() && isDelimiter(text.front()))
        text.remove_prefix(1);
    return withoutBack(text);
}

void TrimTableKey(std::string& text)
{
    text = std::string(trimmedTableKey(text));
}

void TrimTableValue(std::string& text)
{
    text = std::string(trimmedTableValue(text));
}

} // namespace quillfen
