#pragma once

#include "shell/kit/editorform.h"

namespace quillfen {

EditorForm* makeHangmanForm(const FormContext& context);

} // namespace quillfen
