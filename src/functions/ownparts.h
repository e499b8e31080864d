#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The makers of all parts that differ from the kit's.
PartMakers partMakers();

} // namespace quillfen
