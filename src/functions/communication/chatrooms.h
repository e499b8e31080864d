#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Who may do what with chat rooms, and what operators are told of. "Unregistered" takes no part.
const TableFile& chatRoomSettings();

FunctionDeclaration chatRoomsFunction();

} // namespace quillfen
