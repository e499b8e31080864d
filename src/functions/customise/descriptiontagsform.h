#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

/// The profiles that bear a tag, and the tags.
std::unique_ptr<FormPart> makeDescriptionTagsPart(const FormContext& context);

} // namespace quillfen
