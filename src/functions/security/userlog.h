#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// What is logged of users and for how long, and who may look at it.
const TableFile& userLogSettings();

void buildUserLog(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
