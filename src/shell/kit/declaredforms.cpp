#include "shell/kit/declaredforms.h"

#include "shell/kit/folderfilespart.h"
#include "shell/kit/permissiongridpart.h"
#include "shell/kit/textfilepart.h"
#include "shell/kit/ticklistpart.h"

namespace quillfen {
namespace {

/// Makes the part of each kind of declaration.
struct PartMaker
{
    const PartMakers& makers;
    const FormContext& context;

    std::unique_ptr<FormPart> operator()(const DeclaredSettings& settings) const
    {
        return makers.settings(settings.kind, settings.file(), context);
    }

    std::unique_ptr<FormPart> operator()(const DeclaredList& list) const
    {
        return makers.list(list.kind, list.list(context.profiles), context);
    }

    std::unique_ptr<FormPart> operator()(const DeclaredLists& lists) const
    {
        return std::make_unique<RowListGroupPart>(lists.lists(), context);
    }

    std::unique_ptr<FormPart> operator()(const DeclaredTexts& texts) const
    {
        return std::make_unique<FolderFilesPart>(texts.list(), texts.folder, context);
    }

    std::unique_ptr<FormPart> operator()(const DeclaredGrid& grid) const
    {
        return std::make_unique<PermissionGridPart>(grid.grid(), grid.words, context);
    }

    std::unique_ptr<FormPart> operator()(const DeclaredTicks& ticks) const
    {
        return std::make_unique<TickListPart>(ticks.ticks(), context);
    }

    std::unique_ptr<FormPart> operator()(const DeclaredText& text) const
    {
        return std::make_unique<TextFilePart>(text, context);
    }

    std::unique_ptr<FormPart> operator()(const OwnPart& own) const { return makers.own(own, context); }
};

} // namespace

std::unique_ptr<EditorForm> makeForm(const FormDeclaration& declaration, const PartMakers& makers,
                                     const FormContext& context)
{
    auto form = std::make_unique<EditorForm>(declaration.form, context.files.store());
    for (const PartDeclaration& part : declaration.parts)
        form->add(std::visit(PartMaker{makers, context}, part));
    form->explainBy(declaration, context);
    return form;
}

} // namespace quillfen
