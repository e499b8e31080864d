#pragma once

#include "declarations/function.h"

namespace quillfen {

/// What is logged of users and for how long, and who may look at it.
const TableFile& userLogSettings();

FunctionDeclaration userLogFunction();

} // namespace quillfen
