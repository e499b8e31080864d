#pragma once

#include "declarations/function.h"

namespace quillfen {

const TableFile& russianRouletteSettings();

/// What the hub says to a player who survives, and to one who dies.
const RowListDeclaration& russianRouletteLive();
const RowListDeclaration& russianRouletteDie();

FunctionDeclaration russianRouletteFunction();

} // namespace quillfen
