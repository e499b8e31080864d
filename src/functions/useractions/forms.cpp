#include "functions/useractions/forms.h"

#include "functions/useractions/actiontextsform.h"
#include "functions/useractions/collectionsform.h"

namespace quillfen {

FormCatalogue useractionsForms()
{
    return {
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
