#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"

#include <string>
#include <string_view>

namespace quillfen {

/// Where pictures are shown, and who may show them.
const TableFile& asciiSettings();

/// The pictures: file, display name and right-click menu of each.
const RowListDeclaration& asciiPictures();

/// The told path of a picture's file.
std::string asciiFile(std::string_view name);

void buildAscii(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
