#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

/// The rules' texts.
std::unique_ptr<FormPart> makeRulesPart(const FormContext& context);

} // namespace quillfen
