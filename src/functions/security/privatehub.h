#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// Which profiles are refused, where they are sent, what others may not do, and how new users are held back.
const TableFile& privateHubSettings();

void buildPrivateHub(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
