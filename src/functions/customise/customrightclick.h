#pragma once

#include "declarations/function.h"

namespace quillfen {

/// The owner's own lines of the right-click menu. Their order is that of the menu.
RowListDeclaration customRightClicks(const HubProfiles& profiles);

FunctionDeclaration customRightClickFunction();

} // namespace quillfen
