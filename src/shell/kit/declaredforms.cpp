#include "shell/kit/declaredforms.h"

#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/textfilepart.h"

namespace quillfen {
namespace {

/// Makes the part of each kind of declaration.
struct PartMaker
{
    const FormContext& context;

    FormPart* operator()(const DeclaredSettings& settings) const
    {
        return settings.make ? settings.make(settings.file(), context)
                             : new TableFilePart(settings.file(), context);
    }

    FormPart* operator()(const DeclaredList& list) const
    {
        const RowListDeclaration declared = list.list(context.profiles);
        return list.make ? list.make(declared, context) : new RowListPart(declared, context);
    }

    FormPart* operator()(const DeclaredLists& lists) const
    {
        return new RowListGroupPart(lists.lists(), context);
    }

    FormPart* operator()(const DeclaredGrid& grid) const
    {
        return new PermissionGridPart(grid.grid(), grid.words, context);
    }

    FormPart* operator()(const DeclaredTicks& ticks) const
    {
        return new TickListPart(ticks.ticks(), context);
    }

    FormPart* operator()(const DeclaredText& text) const
    {
        return new TextFilePart(text.toolbar, text.caption, text.path, context);
    }

    FormPart* operator()(const OwnPart& own) const { return own.make(context); }
};

} // namespace

EditorForm* makeForm(const FormDeclaration& declaration, const FormContext& context)
{
    auto* form = new EditorForm(declaration.form);
    for (const PartDeclaration& part : declaration.parts)
        form->add(std::visit(PartMaker{context}, part));
    return form;
}

DeclaredList listPart(std::function<RowListDeclaration()> list)
{
    return {[list = std::move(list)](const HubProfiles&) { return list(); }};
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
