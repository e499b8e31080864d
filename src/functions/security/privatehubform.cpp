#include "functions/security/privatehubform.h"

#include "functions/security/privatehub.h"
#include "shell/kit/editorform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makePrivateHubForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityPrivateHub", "Security~ PrivateHub"});
    form->add(new TableFilePart(privateHubSettings(), context));
    return form;
}

} // namespace quillfen
