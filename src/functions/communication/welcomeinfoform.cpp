#include "functions/communication/welcomeinfoform.h"

#include "functions/communication/welcomeinfo.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"

namespace quillfen {

EditorForm* makeNetworkHubsForm(const FormContext& context)
{
    auto* form = new EditorForm(
        {"frmCommunicationWelcomeInfoNetworkHubs", "Communication ~ WelcomeInfo ~ NetworkHubs"});
    form->add(new RowListPart(networkHubs(), context));
    return form;
}

} // namespace quillfen
