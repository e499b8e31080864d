#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// How often the hub's time is shown, to whom, and what its zone is called in summer and in winter.
const TableFile& clockSettings();

void buildClock(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
