#include "functions/general/forms.h"

#include "functions/general/botsform.h"
#include "functions/general/languages.h"
#include "functions/general/languagesform.h"
#include "functions/general/settings.h"
#include "functions/general/switchesform.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

FormCatalogue generalForms()
{
    FormCatalogue forms = {
        // This form was never set clean by a discard: its "SAVE" stays lit until the next save.
        settingsForm({"frmGeneralGeneral",
                      "General ~ Settings",
                      {3165, 3450},
                      FormDescription::AfterDiscard::AsItStood},
                     generalSettings()),
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
