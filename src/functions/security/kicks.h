#pragma once

#include "declarations/function.h"

#include <string_view>

namespace quillfen {

/// How warnings, kicks and bans count up to the next, and how the log is cleaned.
const TableFile& kickSettings();

/// Who may punish whom, as the form edits it.
const PermissionGrid& kickPermissions();

FunctionDeclaration kicksFunction();

} // namespace quillfen
