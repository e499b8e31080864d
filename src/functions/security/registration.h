#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Whether users may register, what they become, and what is kept of it.
const TableFile& registrationSettings();

/// Who may register, delete and look after whom. "Unregistered" takes no part.
const PermissionGrid& registrationPermissions();

FunctionDeclaration registrationFunction();

} // namespace quillfen
