#pragma once

#include "settings/declaration.h"

namespace quillfen {

const TableFile& slotMachineSettings();

void buildSlotMachine(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
