#include "functions/general/forms.h"

#include "functions/general/bots.h"
#include "functions/general/languages.h"
#include "functions/general/languagesform.h"
#include "functions/general/settings.h"
#include "functions/general/switches.h"
#include "shell/kit/codepagetext.h"

namespace quillfen {
namespace {

/// The script's functions with a tick each. A click on one shows its help.
FormDeclaration switchesForm(const FormDescription& form, const ListFile& (*file)())
{
    const auto switches = [file] {
        const auto help = [](const QString& row) { return fromBytes(switchHelp(toBytes(row))); };
        return TickListDescription{"lvwSwitches", "Functions", file(), help};
    };
    return {form, {DeclaredTicks{switches}}};
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
        forms.push_back({{fromBytes(set.form), fromBytes(set.caption), {10500, 6000}}, {languagesPart(set)}});
    }
    return forms;
}

} // namespace quillfen
