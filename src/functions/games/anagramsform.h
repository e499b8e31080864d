#pragma once

#include "shell/kit/editorform.h"

namespace quillfen {

EditorForm* makeAnagramsForm(const FormContext& context);

} // namespace quillfen
