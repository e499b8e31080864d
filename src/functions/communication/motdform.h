#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The profiles with the message that each gets.
OwnPart motdPart();

} // namespace quillfen
