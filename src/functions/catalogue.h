#pragma once

#include "declarations/function.h"

#include <vector>

namespace quillfen {

/// The nodes of all functions: those of the tree in its order, with the forms that no node reaches among
/// them.
const std::vector<Node>& functionNodes();

/// The forms of those nodes.
FormCatalogue formCatalogue();

/// The functions whose folders and files a build makes, in its order.
const FolderCatalogue& folderCatalogue();

} // namespace quillfen
