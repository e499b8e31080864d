#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Who may calculate.
const TableFile& calculatorSettings();

FunctionDeclaration calculatorFunction();

} // namespace quillfen
