#include "functions/security/reportform.h"

#include "functions/security/report.h"
#include "shell/kit/editorform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeReportForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityReport", "Security ~ Report"});
    form->add(new TableFilePart(reportSettings(), context));
    return form;
}

} // namespace quillfen
