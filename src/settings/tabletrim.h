#pragma once

#include <string>
#include <string_view>

namespace quillfen {

/// Strips the key side of a line: tabs, quotes, commas and blanks at both ends, `[` in front and `]` behind.
/// A key's own leading bracket never survives: `["[OP]Name"]` becomes `OP]Name`.
void TrimTableKey(std::string& text);

/// Strips the value side of a line: tabs, quotes, commas and blanks at both ends. Brackets stay.
void TrimTableValue(std::string& text);

/// The same two on views into a file's bytes.
std::string_view trimmedTableKey(std::string_view text);
std::string_view trimmedTableValue(std::string_view text);

} // namespace quillfen
