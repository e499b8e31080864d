#include "functions/games/shared/questions.h"

#include "settings/lines.h"

namespace quillfen {

std::vector<std::string> questionFields(const CellRow& row)
{
    const auto [category, question, found] = splitInPieces(row.cells.at(0), ':');
    return {std::string(trimBlanks(category)), std::string(trimBlanks(question)), row.cells.at(1)};
}

CellRow questionRow(const std::vector<std::string>& fields)
{
    return {{fields.at(0) + ":" + fields.at(1), fields.at(2)}};
}

} // namespace quillfen
