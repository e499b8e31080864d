#include "functions/customise/introsoutrosform.h"

#include "functions/customise/introsoutros.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {
namespace {

EditorForm* makeForm(const FormDescription& description, const IntrosOutros& all, const FormContext& context)
{
    auto* form = new EditorForm(description);
    form->add(new TableFilePart(all.settings, context));
    form->add(new RowListGroupPart(all.lines, context));
    return form;
}

} // namespace

EditorForm* makeIntroOutroForm(const FormContext& context)
{
    return makeForm(
        {"frmCustomiseUserIntroOutro", "Customise User ~ Intros & Outros ~ Standard", {12000, 6900}},
        standardIntrosOutros(), context);
}

EditorForm* makeCustomIntroOutroForm(const FormContext& context)
{
    return makeForm(
        {"frmCustomiseUserCustomIntroOutro", "Customise User ~ Intros & Outros ~ Custom", {12000, 6900}},
        customIntrosOutros(), context);
}

} // namespace quillfen
