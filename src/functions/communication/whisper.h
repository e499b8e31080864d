#pragma once

#include "declarations/function.h"

namespace quillfen {

/// Whether a whisper is confirmed to its sender.
const TableFile& whisperSettings();

FunctionDeclaration whisperFunction();

} // namespace quillfen
