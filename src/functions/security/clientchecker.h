#pragma once

#include "declarations/function.h"

namespace quillfen {

/// What is done to offenders, who is not looked at, and which kinds of connection are refused.
const TableFile& clientCheckerSettings();

/// The clients that may come in or not, each from a version on.
const RowListDeclaration& clientVersions();

FunctionDeclaration clientCheckerFunction();

} // namespace quillfen
