#pragma once

#include "shell/kit/editorform.h"

namespace quillfen {

EditorForm* makeRussianRouletteForm(const FormContext& context);

} // namespace quillfen
