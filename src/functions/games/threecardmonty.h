#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"

namespace quillfen {

const TableFile& threeCardMontySettings();

/// What the hub says to a player who wins, and to one who loses.
const RowListDeclaration& threeCardMontyWin();
const RowListDeclaration& threeCardMontyLose();

void buildThreeCardMonty(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
