#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// Who may send whom mass messages, and who is immune.
OwnPart massMessagePart();

} // namespace quillfen
