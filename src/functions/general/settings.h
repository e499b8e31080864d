#pragma once

#include "declarations/function.h"

namespace quillfen {

/// The script's global settings: borders, prefixes and the right-click menu's name and form.
const TableFile& generalSettings();

FunctionDeclaration generalSettingsFunction();

} // namespace quillfen
