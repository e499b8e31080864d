#include "functions/forms.h"

#include "functions/archive/forms.h"
#include "functions/communication/forms.h"
#include "functions/customise/forms.h"
#include "functions/games/forms.h"
#include "functions/general/forms.h"
#include "functions/security/forms.h"
#include "functions/useractions/forms.h"
#include "news/newsform.h"
#include "portal/portalform.h"

namespace quillfen {

const FormCatalogue& formCatalogue()
{
    static const FormCatalogue catalogue = [] {
        FormCatalogue all = {{"frmGeneralNews", makeNewsForm}, {"frmCommunicationPortal", makePortalForm}};
        for (const auto& group : {generalForms(), communicationForms(), customiseForms(), gamesForms(),
                                  securityForms(), useractionsForms(), archiveForms()})
            all.insert(all.end(), group.begin(), group.end());
        return all;
    }();
    return catalogue;
}

} // namespace quillfen
