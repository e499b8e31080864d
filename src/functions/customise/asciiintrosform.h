#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The users, and the pictures that they may have.
OwnPart asciiIntrosPart();

} // namespace quillfen
