#pragma once

#include "declarations/function.h"

#include <array>
#include <string>

namespace quillfen {

const TableFile& numbersSettings();

/// The list of the calculations: the operator and the four numbers of each.
const RowListDeclaration& numbersCalculationList();

/// The rows of that list and back. A calculation is stored as a text "X Min,X Max,Y Min,Y Max"; one of fewer
/// numbers fills what it has.
CellRow calculationRow(const std::string& operatorSign, const std::string& text);
std::string calculationText(const CellRow& row);

/// The operators in the order of the calculations.
inline constexpr std::array<const char*, 4> calculationOperators = {"+", "-", "*", "/"};

/// The list of fixed questions.
const RowListDeclaration& numbersQuestions();

FunctionDeclaration numbersFunction();

} // namespace quillfen
