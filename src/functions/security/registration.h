#pragma once

#include "settings/declaration.h"
#include "settings/permissiongrid.h"

namespace quillfen {

/// Whether users may register, what they become, and what is kept of it.
const TableFile& registrationSettings();

/// Who may register, delete and look after whom. "Unregistered" takes no part.
const PermissionGrid& registrationPermissions();

void buildRegistration(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
