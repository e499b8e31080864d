#pragma once

#include "declarations/function.h"

#include <string_view>

namespace quillfen {

/// Who may block the main chat for a while, who is not held by it, and for how long it lasts.
const TableFile& mainBlockSettings();

/// Who may lock the main chat, and who is not held by it.
const TableFile& mainLockSettings();

/// Who may clean the main chat.
const TableFile& mainCleanerSettings();

FunctionDeclaration mainBlockFunction();
FunctionDeclaration mainCleanerFunction();
FunctionDeclaration mainLockFunction();

} // namespace quillfen
