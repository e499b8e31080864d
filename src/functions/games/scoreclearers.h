#pragma once

#include "settings/listdeclaration.h"

namespace quillfen {

/// The users who may clear scores, each of them once.
const RowListDeclaration& scoreClearers();

void buildScoreClearers(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
