#pragma once

#include "declarations/function.h"

#include <string>
#include <vector>

namespace quillfen {

/// Text files that are shown in turn, in main chat or by private message.
struct RotatingMessages
{
    TableFile settings;
    ListFile names;     ///< the files that take part
    std::string folder; ///< of the text files
};

const RotatingMessages& rotatingMainMessages();
const RotatingMessages& rotatingPrivateMessages();

/// The list of the text files, ticked while they take part.
RowListDeclaration rotatingFiles(const RotatingMessages& messages);

/// The names in the table, ticked where there is a file of that name, and behind them the other files.
std::vector<CellRow> loadRotatingNames(const RotatingMessages& messages, const SettingsFiles& files);

/// Writes the ticked names. Throws StoreError.
void saveRotatingNames(const RotatingMessages& messages, const std::vector<CellRow>& rows,
                       const SettingsFiles& files);

FunctionDeclaration rotatingMainMessagesFunction();
FunctionDeclaration rotatingPrivateMessagesFunction();

} // namespace quillfen
