#include "functions/useractions/forms.h"

#include "functions/useractions/actiontextsform.h"
#include "functions/useractions/asciiform.h"
#include "functions/useractions/calculator.h"
#include "functions/useractions/collectionsform.h"
#include "functions/useractions/spells.h"
#include "functions/useractions/spellsform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

FormCatalogue useractionsForms()
{
    return {
        {"frmUserActionsAscii", makeAsciiForm},
        settingsForm({"frmUserActionsCalculator", "UserActions ~ Calculator"}, calculatorSettings()),
        {"frmUserActionsInsultsStandard", makeInsultsForm},
        {"frmUserActionsInsultsMedieval", makeMedievalInsultsForm},
        {"frmUserActionsInsultsModern", makeModernInsultsForm},
        {"frmUserActionsAttacks", makeAttacksForm},
        {"frmUserActionsDoAction", makeDoActionForm},
        {"frmUserActionsJokes", makeJokesForm},
        {"frmUserActionsLimericks", makeLimericksForm},
        {"frmUserActionsProverbs", makeProverbsForm},
        {"frmUserActionsQuotations", makeQuotationsForm},
        {"frmUserActionsSpellSettings", makeSpellSettingsForm},
        {"frmUserActionsSpellsSpellBook", makeSpellBookForm},
        settingsForm({"frmUserActionsNickSpellSettings", "UserActions ~ NickSpells ~ Settings"},
                     nickSpellSettings()),
        {"frmUserActionsNickSpellsSpellBook", makeNickSpellBookForm},
    };
}

} // namespace quillfen
