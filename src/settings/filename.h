#pragma once

#include <string>
#include <string_view>

namespace quillfen {

/// Why no new file can bear this name on every platform, or why it would leave its folder; empty if it is a
/// good name.
std::string fileNameFault(std::string_view name);

/// Why a name leads out of its folder, where it stands in a list or on the disk already and is as good as any
/// other; empty if it stays there.
std::string leavingNameFault(std::string_view name);

} // namespace quillfen
