#pragma once

#include "declarations/function.h"

namespace quillfen {

const TableFile& codeBreakerSettings();

FunctionDeclaration codeBreakerFunction();

} // namespace quillfen
