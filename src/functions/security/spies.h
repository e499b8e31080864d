#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Who may spy on commands.
const TableFile& commandSpySettings();

/// Who may see forbidden searches, and whose searches are not looked at.
const TableFile& searchSpySettings();

/// The search terms that are forbidden, each with what is done about it.
const RowListDeclaration& forbiddenFiles();

FunctionDeclaration commandSpyFunction();
FunctionDeclaration searchSpyFunction();

} // namespace quillfen
