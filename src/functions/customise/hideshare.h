#pragma once

#include "declarations/function.h"

namespace quillfen {

/// The profiles whose share is hidden.
const TableFile& hideShareSettings();

FunctionDeclaration hideShareFunction();

} // namespace quillfen
