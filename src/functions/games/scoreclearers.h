#pragma once

#include "declarations/function.h"

namespace quillfen {

/// The users who may clear scores, each of them once.
const RowListDeclaration& scoreClearers();

FunctionDeclaration scoreClearersFunction();

} // namespace quillfen
