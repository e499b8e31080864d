#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Which profiles are refused, where they are sent, what others may not do, and how new users are held back.
const TableFile& privateHubSettings();

FunctionDeclaration privateHubFunction();

} // namespace quillfen
