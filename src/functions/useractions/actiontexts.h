#pragma once

#include "declarations/function.h"

namespace quillfen {

/// The texts with which users insult and attack each other, and the actions that they can do.
const RowListDeclaration& insults();
const RowListDeclaration& attacks();
const RowListDeclaration& doActions();

/// The columns of words from which the hub script composes an insult.
const RowListGroup& medievalInsults();
const RowListGroup& modernInsults();

FunctionDeclaration insultsFunction();
FunctionDeclaration attacksFunction();
FunctionDeclaration doActionsFunction();

} // namespace quillfen
