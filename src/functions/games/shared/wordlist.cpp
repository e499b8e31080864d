#include "functions/games/shared/wordlist.h"

namespace quillfen {

std::vector<CellRow> listFileRows(const SettingsFiles& files, const std::string& path,
                                  std::string_view delimiter, Rows rows)
{
    std::vector<ListRow> list;
    files.ReadTableToList(path, list, delimiter, {}, rows);
    return cellRows(std::move(list));
}

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

RowListDeclaration wordList(const std::string& noun, const std::string& path, WordLine line)
{
    RowListDeclaration words = listOf(noun, Fewest::One);
    words.deletion = deletionOf("Word", "question", noun); // words and questions are asked about alike
    words.list = "lvwWords";
    words.toolbar = "tlbListview";
    words.toolTips = {"Add new Word", "Delete Word", "Edit Word"}; // also where the rows are questions
    words.load = [path, line](const SettingsFiles& files, const HubProfiles&) {
        return listFileRows(files, path, line == WordLine::Question ? "*" : "", Rows::Undivided);
    };
    words.save = [path, line](const SettingsFiles& files, const HubProfiles&,
                              const std::vector<CellRow>& rows) {
        files.WriteSettingsFile(path, composedWords(line, rows));
    };
    return words;
}

RowListDeclaration guessedWords(const std::string& path, const std::string& menu)
{
    RowListDeclaration words = wordList("Word", path, WordLine::Word);
    words.explanation = "Each row is a word that the game has its players find.";
    words.columns = {"Word"};
    words.menu = menu;
    return words;
}

} // namespace quillfen
