#pragma once

#include "shell/kit/editorform.h"

namespace quillfen {

/// The forms of all functions, by name.
const FormCatalogue& formCatalogue();

} // namespace quillfen
