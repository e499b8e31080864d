#include "functions/general/forms.h"

#include "functions/general/botsform.h"
#include "functions/general/languages.h"
#include "functions/general/languagesform.h"
#include "functions/general/settingsform.h"
#include "functions/general/switchesform.h"
#include "shell/kit/codepagetext.h"

namespace quillfen {

FormCatalogue generalForms()
{
    FormCatalogue forms = {
        {"frmGeneralGeneral", makeGeneralSettingsForm},
        {"frmGeneralBots", makeBotsForm},
        {"frmGeneralSwitches", makeSwitchesForm},
        {"frmGeneralRightClicks", makeEnabledRightClicksForm},
    };
    for (const LanguageSet& set : languageSets()) {
        forms.push_back({fromBytes(set.form),
                         [&set](const FormContext& context) { return makeLanguageForm(set, context); }});
    }
    return forms;
}

} // namespace quillfen
