#pragma once

#include "declarations/function.h"

namespace quillfen {

/// The profiles whose users bear a tag in their description: one table of the file.
const TableFile& taggedProfiles();

/// The tag of each profile: the file's other table. A row's place is its profile.
RowListDeclaration descriptionTags();

/// Writes both tables. Throws StoreError.
void saveDescriptionTags(const SettingValues& tagged, const std::vector<CellRow>& tags,
                         const SettingsFiles& files, const HubProfiles& profiles);

FunctionDeclaration descriptionTagsFunction();

} // namespace quillfen
