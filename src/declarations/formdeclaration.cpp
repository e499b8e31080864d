#include "declarations/formdeclaration.h"

#include <utility>

namespace quillfen {
namespace {

struct FilesOf
{
    std::vector<TableFile> operator()(const DeclaredSettings& part) const { return {part.file()}; }
    std::vector<TableFile> operator()(const OwnPart& part) const
    {
        return part.files ? part.files() : std::vector<TableFile>();
    }
    template <typename Other>
    std::vector<TableFile> operator()(const Other& /*part*/) const
    {
        return {};
    }
};

struct ListsOf
{
    using Lists = std::vector<RowListDeclaration>;
    const HubProfiles& profiles;

    Lists operator()(const DeclaredList& part) const { return {part.list(profiles)}; }
    Lists operator()(const DeclaredLists& part) const { return part.lists().lists; }
    Lists operator()(const DeclaredTexts& part) const { return {part.list()}; }
    Lists operator()(const OwnPart& part) const { return part.lists ? part.lists() : Lists(); }
    template <typename Other>
    Lists operator()(const Other& /*part*/) const
    {
        return {};
    }
};

} // namespace

std::vector<TableFile> settingsFilesOf(const PartDeclaration& part)
{
    return std::visit(FilesOf(), part);
}

std::vector<RowListDeclaration> listsOf(const PartDeclaration& part, const HubProfiles& profiles)
{
    return std::visit(ListsOf{profiles}, part);
}

DeclaredList listPart(std::function<RowListDeclaration()> list, ListPartKind kind, std::string folder)
{
    return {[list = std::move(list)](const HubProfiles&) { return list(); }, kind, std::move(folder)};
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
