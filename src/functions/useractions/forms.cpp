#include "functions/useractions/forms.h"

#include "functions/useractions/actiontextsform.h"
#include "functions/useractions/asciiform.h"
#include "functions/useractions/calculatorform.h"
#include "functions/useractions/collectionsform.h"

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
    };
}

} // namespace quillfen
