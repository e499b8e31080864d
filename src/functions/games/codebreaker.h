#pragma once

#include "settings/declaration.h"

namespace quillfen {

const TableFile& codeBreakerSettings();

void buildCodeBreaker(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
