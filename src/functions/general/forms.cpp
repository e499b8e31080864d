#include "functions/general/forms.h"

#include "functions/general/bots.h"
#include "functions/general/languages.h"
#include "functions/general/languagesform.h"
#include "functions/general/settings.h"
#include "functions/general/switches.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/declaredforms.h"
#include "shell/kit/ticklistpart.h"

namespace quillfen {
namespace {

/// The script's functions with a tick each. A click on one shows its help.
FormMaker switchesForm(const FormDescription& description, const ListFile& (*file)())
{
    return formOf(description, [file](const FormContext& context) -> FormParts {
        const auto help = [](const QString& row) { return fromBytes(switchHelp(toBytes(row))); };
        return {new TickListPart({"lvwSwitches", "Functions", file(), help}, context)};
    });
}

} // namespace

FormCatalogue generalForms()
{
    FormCatalogue forms = {
        // This form was never set clean by a discard: its "SAVE" stays lit until the next save.
        settingsForm({"frmGeneralGeneral",
                      "General ~ Settings",
                      {3165, 3450},
                      FormDescription::AfterDiscard::AsItStood},
                     generalSettings),
        settingsAndListForm({"frmGeneralBots", "General ~ Bots"}, botSettings, bots),
        switchesForm({"frmGeneralSwitches", "General ~ Switches", {3165, 3450}}, switchesFile),
        switchesForm({"frmGeneralRightClicks", "General ~ Right Clicks", {3165, 3450}},
                     enabledRightClicksFile),
    };
    for (const LanguageSet& set : languageSets()) {
        forms.push_back({fromBytes(set.form),
                         [&set](const FormContext& context) { return makeLanguageForm(set, context); }});
    }
    return forms;
}

} // namespace quillfen
