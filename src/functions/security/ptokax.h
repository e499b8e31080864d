#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Who may read and who may set the hub's own settings.
const TableFile& ptokaXSettings();

FunctionDeclaration ptokaXSettingsFunction();

} // namespace quillfen
