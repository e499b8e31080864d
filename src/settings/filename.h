#pragma once

#include <string>
#include <string_view>

namespace quillfen {

/// Why no file can bear this name on every platform, or why it would leave its folder; empty if it is a good
/// name.
std::string fileNameFault(std::string_view name);

} // namespace quillfen
