#include "functions/communication/forms.h"

#include "functions/communication/changersform.h"

namespace quillfen {

FormCatalogue communicationForms()
{
    return {
        {"frmCommunicationKickBarChanger", makeKickBarChangerForm},
        {"frmCommunicationTopicChanger", makeTopicChangerForm},
    };
}

} // namespace quillfen
