#include "functions/communication/forms.h"

#include "functions/communication/changersform.h"
#include "functions/communication/chatpermissionsform.h"
#include "functions/communication/hubemail.h"
#include "functions/communication/whisper.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {
namespace {

/// A form that is one settings file and nothing else.
FormMaker settingsForm(const char* name, const char* caption, const TableFile& file)
{
    return {name, [name, caption, &file](const FormContext& context) {
                auto* form = new EditorForm({name, caption});
                form->add(new TableFilePart(file, context));
                return form;
            }};
}

} // namespace

FormCatalogue communicationForms()
{
    return {
        settingsForm("frmCommunicationHubEmail", "Communication ~ HubEmail", hubEmailSettings()),
        {"frmCommunicationKickBarChanger", makeKickBarChangerForm},
        {"frmCommunicationMute", makeMuteForm},
        {"frmCommunicationTalk", makeTalkForm},
        {"frmCommunicationTopicChanger", makeTopicChangerForm},
        settingsForm("frmCommunicationWhisper", "Communication ~ Whisper", whisperSettings()),
    };
}

} // namespace quillfen
