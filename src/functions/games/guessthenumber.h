#pragma once

#include "declarations/function.h"

namespace quillfen {

const TableFile& guessTheNumberSettings();

FunctionDeclaration guessTheNumberFunction();

} // namespace quillfen
