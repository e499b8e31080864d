#include "declarations/formdeclaration.h"

#include <utility>

namespace quillfen {

DeclaredList listPart(std::function<RowListDeclaration()> list, ListPartKind kind)
{
    return {[list = std::move(list)](const HubProfiles&) { return list(); }, kind};
}

FormDeclaration settingsForm(const FormDescription& form, std::function<TableFile()> file)
{
    return {form, {DeclaredSettings{std::move(file)}}};
}

FormDeclaration listForm(const FormDescription& form, std::function<RowListDeclaration()> list)
{
    return {form, {listPart(std::move(list))}};
}

FormDeclaration listsForm(const FormDescription& form, std::function<RowListGroup()> lists)
{
    return {form, {DeclaredLists{std::move(lists)}}};
}

FormDeclaration settingsAndListForm(const FormDescription& form, std::function<TableFile()> file,
                                    std::function<RowListDeclaration()> list)
{
    return {form, {DeclaredSettings{std::move(file)}, listPart(std::move(list))}};
}

FormDeclaration gridForm(FormDescription form, std::function<GridSource()> grid, const GridWords& words)
{
    form.reloadsAfterSave = true;
    return {form, {DeclaredGrid{std::move(grid), words}}};
}

} // namespace quillfen
