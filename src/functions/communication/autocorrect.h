#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Words that the hub script replaces in chat, and for whom.
const TableFile& autoCorrectSettings();

/// The words and their replacements.
const RowListDeclaration& autoCorrectWords();

/// The actions whose texts are left alone. Their rows come with the hub script's own file: the form only
/// ticks them.
const ListFile& autoCorrectFilters();

FunctionDeclaration autoCorrectFunction();

} // namespace quillfen
