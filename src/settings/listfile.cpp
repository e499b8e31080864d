#include "settings/listfile.h"

#include "settings/tablewriter.h"

#include <utility>

namespace quillfen {
namespace {

TableWriter& writeRow(TableWriter& table, ListFile::Form form, const ListRow& row, std::size_t number)
{
    switch (form) {
    case ListFile::Form::Plain:
        return table.row(inQuotes(row.text));
    case ListFile::Form::Keyed:
        return table.text(bracketed(inQuotes(row.text)), row.second);
    case ListFile::Form::Numbered:
        return table.text(bracketed(std::to_string(number)), row.text);
    case ListFile::Form::Presence:
        return table.row(bracketed(inQuotes(row.text)), "1");
    case ListFile::Form::Flags:
        return table.row("b" + row.text, row.checked ? "1" : "0");
    }
    return table;
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
    TableWriter table(file.table);
    std::size_t number = 0;
    for (const ListRow& row : rows)
        writeRow(table, file.form, row, ++number);
    return table.closed();
}

std::string composedNestedLists(const NestedListsFile& file,
                                const std::vector<std::vector<std::string>>& lists)
{
    TableWriter table(file.table);
    for (std::size_t list = 0; list < lists.size(); ++list) {
        table.open(file.tables.at(list));
        for (const std::string& each : lists[list])
            table.row(inQuotes(each));
        table.close();
    }
    return table.closed();
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

void writeEmptyTableIfMissing(const SettingsFiles& files, std::string_view file, std::string_view table)
{
    writeIfMissing(files, file, TableWriter(table).closed());
}

} // namespace quillfen
