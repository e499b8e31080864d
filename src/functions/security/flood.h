#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Who may flood whom.
const PermissionGrid& floodPermissions();

FunctionDeclaration floodFunction();

} // namespace quillfen
