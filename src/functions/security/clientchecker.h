#pragma once

#include "declarations/function.h"

namespace quillfen {

/// What is done to offenders, who is not looked at, and which kinds of connection are refused.
const TableFile& clientCheckerSettings();

/// The clients that may come in or not, each from a version on: `<allow>^<min version>` in the file.
inline constexpr const char* clientVersionsFile = R"(Security\ClientChecker\ClientVersions.tbl)";
const RowListDeclaration& clientVersions();

FunctionDeclaration clientCheckerFunction();

} // namespace quillfen
