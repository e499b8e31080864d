#include "functions/useractions/actiontextsform.h"

#include "functions/useractions/actiontexts.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"

namespace quillfen {
namespace {

EditorForm* formWith(const FormDescription& description, FormPart* part)
{
    auto* form = new EditorForm(description);
    form->add(part);
    return form;
}

} // namespace

EditorForm* makeInsultsForm(const FormContext& context)
{
    return formWith({"frmUserActionsInsultsStandard", "UserActions ~ Insults ~ Standard", {9000, 5400}},
                    new RowListPart(insults(), context));
}

EditorForm* makeMedievalInsultsForm(const FormContext& context)
{
    return formWith({"frmUserActionsInsultsMedieval", "UserActions ~ Insults ~ Medieval", {9000, 5400}},
                    new RowListGroupPart(medievalInsults(), context));
}

EditorForm* makeModernInsultsForm(const FormContext& context)
{
    return formWith({"frmUserActionsInsultsModern", "UserActions ~ Insults ~ Modern", {9000, 5400}},
                    new RowListGroupPart(modernInsults(), context));
}

EditorForm* makeAttacksForm(const FormContext& context)
{
    return formWith({"frmUserActionsAttacks", "UserActions ~ Attacks", {9000, 5400}},
                    new RowListPart(attacks(), context));
}

EditorForm* makeDoActionForm(const FormContext& context)
{
    return formWith({"frmUserActionsDoAction", "UserActions ~ DoAction", {9000, 5400}},
                    new RowListPart(doActions(), context));
}

} // namespace quillfen
