#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

struct RowListDeclaration;

/// The pictures, each with its file.
std::unique_ptr<FormPart> makeAsciiPicturesPart(const RowListDeclaration& list, const FormContext& context);

} // namespace quillfen
