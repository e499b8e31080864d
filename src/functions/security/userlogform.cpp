#include "functions/security/userlogform.h"

#include "functions/security/userlog.h"
#include "shell/kit/editorform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeUserLogForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityUserLogSettings", "Security ~ UserLog"});
    form->add(new TableFilePart(userLogSettings(), context));
    return form;
}

} // namespace quillfen
