#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

struct RowListDeclaration;

/// The users, each of them once.
std::unique_ptr<FormPart> makeScoreClearersPart(const RowListDeclaration& list, const FormContext& context);

} // namespace quillfen
