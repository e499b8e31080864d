#include "settings/listdeclaration.h"

#include "settings/listfile.h"

namespace quillfen {

RowListDeclaration::Load loadOf(const ListFile& file)
{
    return [file](const SettingsFiles& files, const HubProfiles&) {
        std::vector<CellRow> rows;
        for (ListRow& row : loadList(files, file))
            rows.push_back({{std::move(row.text), std::move(row.second)}, row.checked});
        return rows;
    };
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

std::vector<CellRow> noRows(const HubProfiles& /*profiles*/)
{
    return {};
}

} // namespace quillfen
