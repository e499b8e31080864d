#pragma once

#include "settings/listdeclaration.h"

namespace quillfen {

/// The owner's own lines of the right-click menu. Their order is that of the menu.
RowListDeclaration customRightClicks(const HubProfiles& profiles);

void buildCustomRightClicks(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
