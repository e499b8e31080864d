#include "declarations/listdeclaration.h"

#include "settings/listfile.h"

namespace quillfen {

std::string_view inputsOf(EditForm form)
{
    static constexpr std::string_view inputs[] = {"T",  "TT",  "TTT", "TTTT", "N",   "NN",
                                                  "TC", "TTC", "TCC", "NC",   "CCC", "CCCC"};
    return inputs[static_cast<std::size_t>(form)];
}

std::vector<CellRow> cellRows(std::vector<ListRow> list)
{
    std::vector<CellRow> rows;
    rows.reserve(list.size());
    for (ListRow& row : list)
        rows.push_back({{std::move(row.text), std::move(row.second)}, row.checked});
    return rows;
}

RowListDeclaration::Load loadOf(const ListFile& file)
{
    return [file](const SettingsFiles& files, const HubProfiles&) { return cellRows(loadList(files, file)); };
}

RowListDeclaration::Save saveOf(const ListFile& file)
{
    return [file](const SettingsFiles& files, const HubProfiles&, const std::vector<CellRow>& rows) {
        std::vector<ListRow> list;
        list.reserve(rows.size());
        for (const CellRow& row : rows)
            list.push_back(
                {row.cells.at(0), row.cells.size() > 1 ? row.cells[1] : std::string(), row.checked});
        saveList(files, file, list);
    };
}

RowListDeclaration::Load loadOf(const NestedListsFile& file, std::size_t list)
{
    return [path = file.path, table = file.tables.at(list)](const SettingsFiles& files, const HubProfiles&) {
        std::vector<ListRow> read;
        files.ReadTableToList(path, read, "", table);
        std::vector<CellRow> rows;
        rows.reserve(read.size());
        for (ListRow& row : read)
            rows.push_back({{std::move(row.text)}});
        return rows;
    };
}

RowListGroup::Save saveOf(const NestedListsFile& file)
{
    return [file](const SettingsFiles& files, const std::vector<std::vector<CellRow>>& lists) {
        std::vector<std::vector<std::string>> texts;
        for (const auto& rows : lists) {
            texts.emplace_back();
            for (const CellRow& row : rows)
                texts.back().push_back(row.cells.at(0));
        }
        files.WriteSettingsFile(file.path, composedNestedLists(file, texts));
    };
}

RowListDeclaration listOf(const std::string& noun, Fewest fewest)
{
    RowListDeclaration list;
    list.dialog.addTitle = "Add " + noun;
    list.dialog.editTitle = "Edit " + noun;
    list.dialog.labels = {noun};
    list.deletion = deletionOf(noun, noun, fewest == Fewest::One ? noun : "");
    return list;
}

DeleteWords deletionOf(const std::string& titled, const std::string& asked, const std::string& least)
{
    return {"Delete " + titled + "?", "Do you really want to delete this " + asked + "?",
            least.empty() ? least : "There must be a minimum of one " + least};
}

std::vector<CellRow> noRows(const HubProfiles& /*profiles*/)
{
    return {};
}

} // namespace quillfen
