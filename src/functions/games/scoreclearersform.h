#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The users, each of them once.
DeclaredList scoreClearersPart();

} // namespace quillfen
