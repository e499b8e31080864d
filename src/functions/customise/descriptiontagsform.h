#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The profiles that bear a tag, and the tags.
OwnPart descriptionTagsPart();

} // namespace quillfen
