#include "functions/games/shared/wordlist.h"

#include "settings/tablefile.h"

namespace quillfen {
namespace {

std::vector<CellRow> loadWords(const SettingsFiles& files, const std::string& path, WordLine line)
{
    std::vector<ListRow> list;
    files.ReadTableToList(path, list, line == WordLine::Question ? "*" : "", {}, Rows::Undivided);
    std::vector<CellRow> rows;
    rows.reserve(list.size());
    for (ListRow& row : list)
        rows.push_back({{std::move(row.text), std::move(row.second)}});
    return rows;
}

} // namespace

std::string composedWords(WordLine line, const std::vector<CellRow>& rows)
{
    std::string text;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        text += rows[row].cells.at(0);
        if (row + 1 == rows.size())
            break;
        if (line == WordLine::Question)
            text.append("*").append(rows[row].cells.at(1));
        text += lineEnd;
    }
    return text;
}

RowListDeclaration wordList(const std::string& path, WordLine line)
{
    RowListDeclaration words;
    words.list = "lvwWords";
    words.toolbar = "tlbListview";
    words.toolTips = {"Add new Word", "Delete Word", "Edit Word"}; // also where the rows are questions
    words.load = [path, line](const SettingsFiles& files, const HubProfiles&) {
        return loadWords(files, path, line);
    };
    words.save = [path, line](const SettingsFiles& files, const HubProfiles&,
                              const std::vector<CellRow>& rows) {
        files.WriteSettingsFile(path, composedWords(line, rows));
    };
    return words;
}

RowListDeclaration guessedWords(const std::string& path, const std::string& menu)
{
    RowListDeclaration words = wordList(path, WordLine::Word);
    words.columns = {"Word"};
    words.menu = menu;
    words.dialog.addTitle = "Add Word";
    words.dialog.editTitle = "Edit Word";
    words.dialog.labels = {"Word"};
    // The box asks in the words of the games of questions.
    words.deletion = {"Delete Word?", "Do you really want to delete this question?",
                      "There must be a minimum of one Word"};
    return words;
}

} // namespace quillfen
