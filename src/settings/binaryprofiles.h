#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// The names in the profile file that hubs of today write, in its order; nothing if it is damaged or another
/// file. All numbers are big-endian. The file is a row of items, each behind a size of four bytes that counts
/// itself. An item is a row of values, each behind a size of two bytes, which counts itself and the value's
/// name of two letters. The first item says what file it is, and each further one is a profile.
std::optional<std::vector<std::string>> binaryProfileNames(std::string_view bytes);

} // namespace quillfen
