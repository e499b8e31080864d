#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The settings with the calculations among them.
DeclaredSettings numbersSettingsPart();

/// The fixed questions.
DeclaredList numbersQuestionsPart();

} // namespace quillfen
