#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Who may report users.
const TableFile& reportSettings();

FunctionDeclaration reportFunction();

} // namespace quillfen
