#pragma once

#include "declarations/listdeclaration.h"

#include <string>
#include <vector>

namespace quillfen {

/// Category, question and answer of a row of "Category:Question" and answer. The row is split at every colon,
/// so a question that holds one loses what stands behind it when it is edited.
std::vector<std::string> questionFields(const CellRow& row);

/// The row of category, question and answer.
CellRow questionRow(const std::vector<std::string>& fields);

} // namespace quillfen
