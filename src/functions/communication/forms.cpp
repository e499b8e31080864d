#include "functions/communication/forms.h"

#include "functions/communication/autocorrect.h"
#include "functions/communication/changers.h"
#include "functions/communication/chatpermissions.h"
#include "functions/communication/chatrooms.h"
#include "functions/communication/clock.h"
#include "functions/communication/hubemail.h"
#include "functions/communication/massmessageform.h"
#include "functions/communication/motdform.h"
#include "functions/communication/rotatingmessages.h"
#include "functions/communication/welcomeinfo.h"
#include "functions/communication/whisper.h"
#include "shell/kit/folderfilespart.h"

namespace quillfen {
namespace {

TickListDescription filteredActions()
{
    TickListDescription filters{"lvwFilters", "Filtered Actions", autoCorrectFilters()};
    filters.label = "Filtered Actions";
    filters.restoreTicks = false;
    return filters;
}

FormDeclaration changerForm(const FormDescription& form, const Changer& (*changer)())
{
    return settingsAndListForm(
        form, [changer] { return changer().settings; }, [changer] { return changer().texts; });
}

FormDeclaration rotatingForm(const FormDescription& form, const RotatingMessages& (*messages)())
{
    DeclaredList texts = listPart([messages] { return rotatingFiles(messages()); });
    texts.make = [messages](const RowListDeclaration& list, const FormContext& context) {
        return new FolderFilesPart(list, messages().folder, context);
    };
    return {form, {DeclaredSettings{[messages] { return messages().settings; }}, texts}};
}

} // namespace

FormCatalogue communicationForms()
{
    return {
        {{"frmCommunicationAutoCorrect", "Communication ~ AutoCorrect"},
         {DeclaredSettings{autoCorrectSettings}, listPart(autoCorrectWords), DeclaredTicks{filteredActions}}},
        settingsForm({"frmCommunicationChatRooms", "Communication ~ ChatRooms"}, chatRoomSettings),
        settingsForm({"frmCommunicationClock", "Communication ~ Clock"}, clockSettings),
        settingsForm({"frmCommunicationHubEmail", "Communication ~ HubEmail"}, hubEmailSettings),
        changerForm({"frmCommunicationKickBarChanger", "Communication ~ KickBarChanger"}, kickBarChanger),
        {{.name = "frmCommunicationMOTD", .caption = "Communication ~ MOTD", .hasRestore = false},
         {motdPart()}},
        {{.name = "frmCommunicationMassMessage",
          .caption = "Communication ~ MassMessage",
          .hasRestore = false,
          .reloadsAfterSave = true},
         {massMessagePart()}},
        gridForm(
            {.name = "frmCommunicationMute", .caption = "Communication ~ Mute", .hasRestore = false},
            [] { return sourceOf(mutePermissions()); }, blockGrid()),
        rotatingForm({"frmCommunicationRotatingMainMessage", "Communication ~ RotatingMainMessage"},
                     rotatingMainMessages),
        rotatingForm({"frmCommunicationRotatingPrivateMessage", "Communication ~ RotatingPrivateMessage"},
                     rotatingPrivateMessages),
        gridForm(
            {.name = "frmCommunicationTalk", .caption = "Communication ~ Talk", .hasRestore = false},
            [] { return sourceOf(talkPermissions()); }, blockGrid()),
        changerForm({"frmCommunicationTopicChanger", "Communication ~ TopicChanger"}, topicChanger),
        listForm({"frmCommunicationWelcomeInfoNetworkHubs", "Communication ~ WelcomeInfo ~ NetworkHubs"},
                 networkHubs),
        settingsForm({"frmCommunicationWelcomeInfoSettings", "Communication ~ WelcomeInfo ~ Settings"},
                     welcomeInfoSettings),
        settingsForm({"frmCommunicationWhisper", "Communication ~ Whisper"}, whisperSettings),
    };
}

} // namespace quillfen
