#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Whether operators hear of changes, and which profiles may make them.
const TableFile& botSettings();

/// Every function with its bot: function, nick, description, email and the group's word, which the list
/// hides.
const RowListDeclaration& bots();

FunctionDeclaration botsFunction();

} // namespace quillfen
