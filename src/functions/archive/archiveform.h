#pragma once

#include "shell/kit/editorform.h"

namespace quillfen {

/// The three forms of each member, and Hyperlink's right clicks.
FormCatalogue makersOfArchiveForms();

} // namespace quillfen
