#pragma once

#include "settings/rebuild.h"

namespace quillfen {

/// Every folder of the settings tree, in the order of the build, with the routines of the functions that live
/// there.
const FolderCatalogue& folderCatalogue();

} // namespace quillfen
