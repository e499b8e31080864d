#pragma once

#include <string>
#include <string_view>

namespace quillfen {

/// Why no file can bear this name on every platform, or why it would leave its folder; empty if it is a good
/// name.
std::string fileNameFault(std::string_view name);

/// The same text in lower case: the letters of the code page, and only those, change.
std::string lowered(std::string_view text);

/// The same in upper case.
std::string raised(std::string_view text);

} // namespace quillfen
