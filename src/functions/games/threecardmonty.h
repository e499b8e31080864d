#pragma once

#include "declarations/function.h"

namespace quillfen {

const TableFile& threeCardMontySettings();

/// What the hub says to a player who wins, and to one who loses.
const RowListDeclaration& threeCardMontyWin();
const RowListDeclaration& threeCardMontyLose();

FunctionDeclaration threeCardMontyFunction();

} // namespace quillfen
