#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// Who may read and who may set the hub's own settings.
const TableFile& ptokaXSettings();

void buildPtokaXSettings(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
