#include "portal/portalform.h"

#include "portal/portalpart.h"
#include "shell/kit/editorform.h"

namespace quillfen {

EditorForm* makePortalForm(const FormContext& context)
{
    FormDescription description{"frmCommunicationPortal", "Communication ~ Portal", {6000, 6600}};
    description.hasRestore = false;
    auto* form = new EditorForm(description);
    auto* part = new PortalPart(context);
    form->add(part);
    QObject::connect(form, &EditorForm::closed, part, &PortalPart::endLinks);
    return form;
}

} // namespace quillfen
