#include "functions/forms.h"

#include "functions/general/settingsform.h"
#include "functions/general/switchesform.h"

namespace quillfen {

const FormCatalogue& formCatalogue()
{
    static const FormCatalogue catalogue = {
        {"frmGeneralGeneral", makeGeneralSettingsForm},
        {"frmGeneralSwitches", makeSwitchesForm},
        {"frmGeneralRightClicks", makeEnabledRightClicksForm},
    };
    return catalogue;
}

} // namespace quillfen
