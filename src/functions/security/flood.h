#pragma once

#include "settings/permissiongrid.h"

namespace quillfen {

/// Who may flood whom.
const PermissionGrid& floodPermissions();

void buildFlood(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
