#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"

namespace quillfen {

const TableFile& russianRouletteSettings();

/// What the hub says to a player who survives, and to one who dies.
const RowListDeclaration& russianRouletteLive();
const RowListDeclaration& russianRouletteDie();

void buildRussianRoulette(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
