#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"
#include "settings/listfile.h"

namespace quillfen {

/// Words that the hub script replaces in chat, and for whom.
const TableFile& autoCorrectSettings();

/// The words and their replacements.
const RowListDeclaration& autoCorrectWords();

/// The actions whose texts are left alone. Their rows come with the hub script's own file: the form only
/// ticks them.
const ListFile& autoCorrectFilters();

void buildAutoCorrect(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
