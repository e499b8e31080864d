#include "functions/security/clientcheckerform.h"

#include "functions/security/clientchecker.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeClientCheckerForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityClientCheckerSettings", "Security ~ ClientChecker"});
    form->add(new TableFilePart(clientCheckerSettings(), context));
    form->add(new RowListPart(clientVersions(), context));
    return form;
}

} // namespace quillfen
