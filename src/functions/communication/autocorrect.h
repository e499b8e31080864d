#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Words that the hub script replaces in chat, and for whom.
const TableFile& autoCorrectSettings();

/// The words and their replacements.
const RowListDeclaration& autoCorrectWords();

FunctionDeclaration autoCorrectFunction();

} // namespace quillfen
