#pragma once

#include "shell/kit/editorform.h"

namespace quillfen {

EditorForm* makeNumbersForm(const FormContext& context);

} // namespace quillfen
