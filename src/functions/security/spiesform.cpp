#include "functions/security/spiesform.h"

#include "functions/security/spies.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeSearchSpyForm(const FormContext& context)
{
    FormDescription description{"frmSecuritySearchSpy", "Security ~ SearchSpy"};
    description.parts = Qt::Horizontal;
    auto* form = new EditorForm(description);
    form->add(new TableFilePart(searchSpySettings(), context));
    form->add(new RowListPart(forbiddenFiles(), context));
    return form;
}

} // namespace quillfen
