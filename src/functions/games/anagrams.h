#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"

namespace quillfen {

const TableFile& anagramSettings();

/// The list of words to find.
const RowListDeclaration& anagramWords();

void buildAnagrams(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
