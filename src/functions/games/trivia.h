#pragma once

#include "declarations/function.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

const TableFile& triviaSettings();

/// The question files that the game knows, by name, and the one that it starts with. Without a default there
/// is none.
struct TriviaQuestionFiles
{
    std::string defaultFile;
    std::vector<std::string> names; ///< sorted, the default among them
};

TriviaQuestionFiles loadTriviaQuestionFiles(const SettingsFiles& files);

/// Writes the default and every other name. Throws StoreError.
void saveTriviaQuestionFiles(const SettingsFiles& files, const TriviaQuestionFiles& questionFiles);

/// The question files and the questions of one; their loading and saving is told below.
ListedFiles triviaQuestionLists();

/// The told path of a question file.
std::string triviaQuestionFile(std::string_view name);

/// A question file's rows, "Category:Question" and the answer. A line that ends in "t" is lost to the list
/// reader.
std::vector<CellRow> loadTriviaQuestions(const SettingsFiles& files, std::string_view name);

/// Throws StoreError.
void saveTriviaQuestions(const SettingsFiles& files, std::string_view name, const std::vector<CellRow>& rows);

/// A new question file with its one row. Throws StoreError.
void createTriviaQuestions(const SettingsFiles& files, std::string_view name);

FunctionDeclaration triviaFunction();

} // namespace quillfen
