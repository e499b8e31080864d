#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// The script's global settings: borders, prefixes and the right-click menu's name and form.
const TableFile& generalSettings();

void buildGeneralSettings(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
