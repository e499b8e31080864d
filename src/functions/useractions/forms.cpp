#include "functions/useractions/forms.h"

#include "functions/useractions/actiontextsform.h"
#include "functions/useractions/asciiform.h"
#include "functions/useractions/calculatorform.h"
#include "functions/useractions/collectionsform.h"
#include "functions/useractions/spellsform.h"

namespace quillfen {

FormCatalogue useractionsForms()
{
    return {
        {"frmUserActionsAscii", makeAsciiForm},
        {"frmUserActionsCalculator", makeCalculatorForm},
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
        {"frmUserActionsNickSpellSettings", makeNickSpellSettingsForm},
        {"frmUserActionsNickSpellsSpellBook", makeNickSpellBookForm},
    };
}

} // namespace quillfen
