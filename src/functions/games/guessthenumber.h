#pragma once

#include "settings/declaration.h"

namespace quillfen {

const TableFile& guessTheNumberSettings();

void buildGuessTheNumber(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
