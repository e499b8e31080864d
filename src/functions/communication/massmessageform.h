#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

/// Who may send whom mass messages, and who is immune.
std::unique_ptr<FormPart> makeMassMessagePart(const FormContext& context);

} // namespace quillfen
