#pragma once

#include "declarations/declaration.h"

namespace quillfen {

/// The profiles for which a function is on: a check list with a heading of its own below its label.
Setting enabledProfiles(const std::string& label);

} // namespace quillfen
