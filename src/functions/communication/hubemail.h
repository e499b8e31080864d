#pragma once

#include "declarations/function.h"

namespace quillfen {

/// How many mails a user's inbox holds. No rebuild writes the file or makes its folder: the form's first save
/// does both, and until then it shows what the reader gives for a missing file.
const TableFile& hubEmailSettings();

FunctionDeclaration hubEmailFunction();

} // namespace quillfen
