#pragma once

#include "declarations/function.h"

namespace quillfen {

/// How often the hub's time is shown, to whom, and what its zone is called in summer and in winter.
const TableFile& clockSettings();

FunctionDeclaration clockFunction();

} // namespace quillfen
