#include "functions/communication/forms.h"

#include "functions/communication/autocorrectform.h"
#include "functions/communication/changersform.h"
#include "functions/communication/chatpermissionsform.h"
#include "functions/communication/chatrooms.h"
#include "functions/communication/clock.h"
#include "functions/communication/hubemail.h"
#include "functions/communication/massmessageform.h"
#include "functions/communication/motdform.h"
#include "functions/communication/rotatingmessagesform.h"
#include "functions/communication/welcomeinfo.h"
#include "functions/communication/welcomeinfoform.h"
#include "functions/communication/whisper.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

FormCatalogue communicationForms()
{
    return {
        {"frmCommunicationAutoCorrect", makeAutoCorrectForm},
        settingsForm({"frmCommunicationChatRooms", "Communication ~ ChatRooms"}, chatRoomSettings()),
        settingsForm({"frmCommunicationClock", "Communication ~ Clock"}, clockSettings()),
        settingsForm({"frmCommunicationHubEmail", "Communication ~ HubEmail"}, hubEmailSettings()),
        {"frmCommunicationKickBarChanger", makeKickBarChangerForm},
        {"frmCommunicationMOTD", makeMotdForm},
        {"frmCommunicationMassMessage", makeMassMessageForm},
        {"frmCommunicationMute", makeMuteForm},
        {"frmCommunicationRotatingMainMessage", makeRotatingMainMessageForm},
        {"frmCommunicationRotatingPrivateMessage", makeRotatingPrivateMessageForm},
        {"frmCommunicationTalk", makeTalkForm},
        {"frmCommunicationTopicChanger", makeTopicChangerForm},
        {"frmCommunicationWelcomeInfoNetworkHubs", makeNetworkHubsForm},
        settingsForm({"frmCommunicationWelcomeInfoSettings", "Communication ~ WelcomeInfo ~ Settings"},
                     welcomeInfoSettings()),
        settingsForm({"frmCommunicationWhisper", "Communication ~ Whisper"}, whisperSettings()),
    };
}

} // namespace quillfen
