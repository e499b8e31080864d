#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The pictures, each with its file.
DeclaredList asciiPicturesPart();

} // namespace quillfen
