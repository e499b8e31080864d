#pragma once

#include "declarations/function.h"

#include <string>

namespace quillfen {

const TableFile& hangmanSettings();

/// The list of words to guess.
const RowListDeclaration& hangmanWords();

/// The stages of the gallows: the slider runs from the whole picture at 0 to the empty one at the last stage.
inline constexpr int lastGallowsStage = 13;

/// The told path of the picture at a place of the slider: its number counts from the other end.
std::string gallowsFile(int stage);

FunctionDeclaration hangmanFunction();

} // namespace quillfen
