#pragma once

#include "declarations/function.h"

namespace quillfen {

/// The facts of the welcome information.
const TableFile& welcomeInfoSettings();

/// The hubs of the network.
const RowListDeclaration& networkHubs();

FunctionDeclaration welcomeInfoFunction();

} // namespace quillfen
