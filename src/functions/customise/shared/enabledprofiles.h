#pragma once

#include "declarations/declaration.h"

#include <string>
#include <string_view>

namespace quillfen {

/// The profiles for which a function is on: a check list with a heading of its own below its label. The
/// explanation says what it does for them.
Setting enabledProfiles(const std::string& label, std::string_view explanation);

} // namespace quillfen
