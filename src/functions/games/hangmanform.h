#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The settings, which are not saved without a hint character.
DeclaredSettings hangmanSettingsPart();

/// The pictures of the gallows.
OwnPart gallowsPart();

} // namespace quillfen
