#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// Who may calculate.
const TableFile& calculatorSettings();

void buildCalculator(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
