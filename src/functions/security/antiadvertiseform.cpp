#include "functions/security/antiadvertiseform.h"

#include "functions/security/antiadvertise.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/ticklistpart.h"

namespace quillfen {

EditorForm* makeAntiAdvertiseSettingsForm(const FormContext& context)
{
    FormDescription description{"frmSecurityAntiAdvertiseSettings", "Security ~ AntiAdvertise ~  Settings"};
    description.parts = Qt::Horizontal;
    TickListDescription actions;
    actions.control = "lvwBlockedActions";
    actions.label = "Blocked Actions";
    actions.file = blockedActionsFile();
    actions.restoreTicks = false;
    auto* form = new EditorForm(description);
    form->add(new TableFilePart(antiAdvertiseSettings(), context));
    form->add(new TickListPart(actions, context));
    return form;
}

EditorForm* makeAntiAdvertiseAddressesForm(const FormContext& context)
{
    FormDescription description{"frmSecurityAntiAdvertiseAddresses", "Security ~ AntiAdvertise"};
    description.parts = Qt::Horizontal;
    auto* form = new EditorForm(description);
    form->add(new RowListPart(blockedAddresses(), context));
    form->add(new RowListPart(allowedAddresses(), context));
    return form;
}

} // namespace quillfen
