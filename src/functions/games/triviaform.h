#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The question files, and the questions of the one that is open.
OwnPart triviaQuestionsPart();

} // namespace quillfen
