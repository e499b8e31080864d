#include "settings/listfile.h"

#include <utility>

namespace quillfen {
namespace {

std::string rowText(const ListFile& file, const ListRow& row, std::size_t number)
{
    switch (file.form) {
    case ListFile::Form::Plain:
        return "\"" + row.text + "\"";
    case ListFile::Form::Keyed:
        return "[\"" + row.text + "\"] = \"" + row.second + "\"";
    case ListFile::Form::Numbered:
        return "[" + std::to_string(number) + "] = \"" + row.text + "\"";
    case ListFile::Form::Presence:
        return "[\"" + row.text + "\"] = 1";
    case ListFile::Form::Flags:
        return "b" + row.text + (row.checked ? " = 1" : " = 0");
    }
    return {};
}

/// Turns what the reader gave into what the list shows.
void adapt(ListFile::Form form, ListRow& row)
{
    switch (form) {
    case ListFile::Form::Plain:
    case ListFile::Form::Keyed:
        return;
    case ListFile::Form::Numbered:
        row.text = std::exchange(row.second, {});
        return;
    case ListFile::Form::Presence:
        row.second.clear();
        return;
    case ListFile::Form::Flags:
        row.text.erase(0, 1); // the letter of its type, whichever it is
        return;
    }
}

} // namespace

std::vector<ListRow> loadList(const SettingsFiles& files, const ListFile& file)
{
    std::vector<ListRow> rows;
    files.ReadTableToList(file.path, rows, file.form == ListFile::Form::Plain ? "" : "=", file.table,
                          file.form == ListFile::Form::Flags ? Rows::Checked : Rows::Plain);
    for (ListRow& row : rows)
        adapt(file.form, row);
    return rows;
}

std::string composedList(const ListFile& file, const std::vector<ListRow>& rows)
{
    std::string text = file.table + " = {\r\n";
    std::size_t number = 0;
    for (const ListRow& row : rows)
        text.append("\t").append(rowText(file, row, ++number)).append(",\r\n");
    return text + "}";
}

std::string composedNestedLists(const NestedListsFile& file,
                                const std::vector<std::vector<std::string>>& lists)
{
    std::string text = file.table + " = {\r\n";
    for (std::size_t list = 0; list < lists.size(); ++list) {
        text += "\t" + file.tables.at(list) + " = {\r\n";
        for (const std::string& each : lists[list])
            text += "\t\t\"" + each + "\",\r\n";
        text += "\t},\r\n";
    }
    return text + "}";
}

void saveList(const SettingsFiles& files, const ListFile& file, const std::vector<ListRow>& rows)
{
    files.WriteSettingsFile(file.path, composedList(file, rows));
}

void writeIfMissing(const SettingsFiles& files, std::string_view file, std::string_view text)
{
    if (!files.store().exists(files.paths().resolve(file)))
        files.WriteSettingsFile(file, text);
}

std::string emptyTable(std::string_view table)
{
    return std::string(table) + " = {\r\n}";
}

void writeEmptyTableIfMissing(const SettingsFiles& files, std::string_view file, std::string_view table)
{
    writeIfMissing(files, file, emptyTable(table));
}

} // namespace quillfen
