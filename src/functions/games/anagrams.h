#pragma once

#include "declarations/function.h"

namespace quillfen {

const TableFile& anagramSettings();

/// The list of words to find.
const RowListDeclaration& anagramWords();

FunctionDeclaration anagramsFunction();

} // namespace quillfen
