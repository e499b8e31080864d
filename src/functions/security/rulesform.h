#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The rules' texts.
OwnPart rulesPart();

} // namespace quillfen
