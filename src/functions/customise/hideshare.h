#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// The profiles whose share is hidden.
const TableFile& hideShareSettings();

void buildHideShare(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
