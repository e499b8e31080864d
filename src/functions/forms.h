#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The forms of all functions, by name.
const FormCatalogue& formCatalogue();

} // namespace quillfen
