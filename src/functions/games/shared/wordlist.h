#pragma once

#include "declarations/listdeclaration.h"
#include "settings/tablefile.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// What a line of a game's list file holds.
enum class WordLine
{
    Word,    ///< the word
    Question ///< a question, an asterisk, its answer
};

/// The rows of a game's list file as its lists show them: the text and what stands behind the delimiter.
std::vector<CellRow> listFileRows(const SettingsFiles& files, const std::string& path,
                                  std::string_view delimiter, Rows rows);

/// The game's own list of words, lvwWords, over a list file. Loading shows as many rows as the file has
/// lines: a question without an asterisk has an empty answer, but a line with one that ends in "t" is lost to
/// the list reader.
RowListDeclaration wordList(const std::string& path, WordLine line);

/// The list of the games whose words are guessed, with the menu of that game.
RowListDeclaration guessedWords(const std::string& path, const std::string& menu);

/// What a rebuild seeds such a list with.
inline constexpr const char* firstWord = "quillfen\r\n";

/// The text of the whole file, without the writer's line end. The last row stands without a line end, and
/// without asterisk and answer: each save loses the last answer, and a load shows the row without one.
std::string composedWords(WordLine line, const std::vector<CellRow>& rows);

} // namespace quillfen
