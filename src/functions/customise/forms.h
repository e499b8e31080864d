#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The forms of this group, by name.
FormCatalogue customiseForms();

} // namespace quillfen
