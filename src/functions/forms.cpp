#include "functions/forms.h"

#include "functions/archive/forms.h"
#include "functions/communication/forms.h"
#include "functions/customise/forms.h"
#include "functions/games/forms.h"
#include "functions/general/forms.h"
#include "functions/security/forms.h"
#include "functions/useractions/forms.h"
#include "news/newsform.h"
#include "portal/portalpart.h"

namespace quillfen {

const FormCatalogue& formCatalogue()
{
    static const FormCatalogue catalogue = [] {
        FormCatalogue all = {{{"frmGeneralNews", "General ~ News", {6000, 4500}}, {newsPart()}},
                             {{.name = "frmCommunicationPortal",
                               .caption = "Communication ~ Portal",
                               .minimumTwips = {6000, 6600},
                               .hasRestore = false},
                              {ownPart<PortalPart>()}}};
        for (const auto& group : {generalForms(), communicationForms(), customiseForms(), gamesForms(),
                                  securityForms(), useractionsForms(), archiveForms()})
            all.insert(all.end(), group.begin(), group.end());
        return all;
    }();
    return catalogue;
}

} // namespace quillfen
