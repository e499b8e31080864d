#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

/// The users, and the pictures that they may have.
std::unique_ptr<FormPart> makeAsciiIntrosPart(const FormContext& context);

} // namespace quillfen
