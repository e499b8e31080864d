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
#include "shell/kit/declaredforms.h"
#include "shell/kit/folderfilespart.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/ticklistpart.h"

namespace quillfen {
namespace {

FormParts autoCorrectParts(const FormContext& context)
{
    TickListDescription filters{"lvwFilters", "Filtered Actions", autoCorrectFilters()};
    filters.label = "Filtered Actions";
    filters.restoreTicks = false;
    return {new TableFilePart(autoCorrectSettings(), context), new RowListPart(autoCorrectWords(), context),
            new TickListPart(filters, context)};
}

FormMaker changerForm(const FormDescription& description, const Changer& (*changer)())
{
    return settingsAndListForm(
        description, [changer]() -> const TableFile& { return changer().settings; },
        [changer]() -> const RowListDeclaration& { return changer().texts; });
}

FormMaker rotatingForm(const FormDescription& description, const RotatingMessages& (*declared)())
{
    return formOf(description, [declared](const FormContext& context) -> FormParts {
        const RotatingMessages& messages = declared();
        return {new TableFilePart(messages.settings, context),
                new FolderFilesPart(rotatingFiles(messages), messages.folder, context)};
    });
}

} // namespace

FormCatalogue communicationForms()
{
    return {
        formOf({"frmCommunicationAutoCorrect", "Communication ~ AutoCorrect"}, autoCorrectParts),
        settingsForm({"frmCommunicationChatRooms", "Communication ~ ChatRooms"}, chatRoomSettings),
        settingsForm({"frmCommunicationClock", "Communication ~ Clock"}, clockSettings),
        settingsForm({"frmCommunicationHubEmail", "Communication ~ HubEmail"}, hubEmailSettings),
        changerForm({"frmCommunicationKickBarChanger", "Communication ~ KickBarChanger"}, kickBarChanger),
        {"frmCommunicationMOTD", makeMotdForm},
        {"frmCommunicationMassMessage", makeMassMessageForm},
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
