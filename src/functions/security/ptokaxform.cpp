#include "functions/security/ptokaxform.h"

#include "functions/security/ptokax.h"
#include "shell/kit/editorform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makePtokaXSettingsForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityPtokaXSettings", "Security~ PtokaXSettings"});
    form->add(new TableFilePart(ptokaXSettings(), context));
    return form;
}

} // namespace quillfen
