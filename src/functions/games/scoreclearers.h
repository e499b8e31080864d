#pragma once

#include "settings/listdeclaration.h"

#include <string_view>

namespace quillfen {

/// The users who may clear scores.
const RowListDeclaration& scoreClearers();

/// Whether a nick is in the list already, in letters of any case.
bool isClearer(const std::vector<CellRow>& rows, std::string_view nick);

void buildScoreClearers(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
