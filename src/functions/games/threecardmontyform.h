#pragma once

#include "shell/kit/editorform.h"

namespace quillfen {

EditorForm* makeThreeCardMontyForm(const FormContext& context);

} // namespace quillfen
