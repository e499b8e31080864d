#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// Who may report users.
const TableFile& reportSettings();

void buildReport(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
