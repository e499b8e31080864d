#pragma once

#include "declarations/function.h"

namespace quillfen {

const TableFile& slotMachineSettings();

FunctionDeclaration slotMachineFunction();

} // namespace quillfen
