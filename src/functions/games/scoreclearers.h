#pragma once

#include "declarations/function.h"

#include <string_view>

namespace quillfen {

/// The users who may clear scores.
const RowListDeclaration& scoreClearers();

/// Whether a nick is in the list already, in letters of any case.
bool isClearer(const std::vector<CellRow>& rows, std::string_view nick);

FunctionDeclaration scoreClearersFunction();

} // namespace quillfen
