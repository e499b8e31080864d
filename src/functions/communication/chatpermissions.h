#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Who may mute whom, and who may talk through whom.
const PermissionGrid& mutePermissions();
const PermissionGrid& talkPermissions();

FunctionDeclaration muteFunction();
FunctionDeclaration talkFunction();

} // namespace quillfen
