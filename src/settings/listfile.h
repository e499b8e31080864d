#pragma once

#include "settings/tablefile.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// A settings file that is one table of rows.
struct ListFile
{
    enum class Form
    {
        Plain,    ///< `"text",`
        Keyed,    ///< `["text"] = "second",`
        Numbered, ///< `[n] = "text",` counted from 1 in list order
        Presence, ///< `["text"] = 1,`: being there is the data
        Flags,    ///< `btext = 0,` or 1 for a ticked row; the key's `b` is no part of the text
    };

    std::string path;
    std::string table;
    Form form = Form::Plain;
};

/// A settings file that holds several lists of plain texts, each in a nested table of its own.
struct NestedListsFile
{
    std::string path;
    std::string table;
    std::vector<std::string> tables; ///< in the order of the file
};

/// The text of the whole file from each list's texts, without the writer's last line end.
std::string composedNestedLists(const NestedListsFile& file,
                                const std::vector<std::vector<std::string>>& lists);

std::vector<ListRow> loadList(const SettingsFiles& files, const ListFile& file);

/// The text of the whole file, without the writer's last line end. Nothing is escaped.
std::string composedList(const ListFile& file, const std::vector<ListRow>& rows);

/// Writes the rows in their order. Throws StoreError.
void saveList(const SettingsFiles& files, const ListFile& file, const std::vector<ListRow>& rows);

/// The rebuild's way with content: a file that exists is left as it is. Throws StoreError.
void writeIfMissing(const SettingsFiles& files, std::string_view file, std::string_view text);

/// The same with a table of no rows.
void writeEmptyTableIfMissing(const SettingsFiles& files, std::string_view file, std::string_view table);

} // namespace quillfen
