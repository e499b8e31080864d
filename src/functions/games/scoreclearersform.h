#pragma once

#include "shell/kit/editorform.h"

namespace quillfen {

EditorForm* makeScoreClearersForm(const FormContext& context);

} // namespace quillfen
