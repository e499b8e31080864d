#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

/// The question files, and the questions of the one that is open.
std::unique_ptr<FormPart> makeTriviaQuestionsPart(const FormContext& context);

} // namespace quillfen
