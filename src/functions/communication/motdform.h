#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

/// The profiles with the message that each gets.
std::unique_ptr<FormPart> makeMotdPart(const FormContext& context);

} // namespace quillfen
