#include "functions/communication/welcomeinfo.h"

namespace quillfen {
namespace {

ListFile hubsFile()
{
    return {R"(Communication\WelcomeInfo\WelcomeInfoNetworkHubs.tbl)", "tWelcomeInfoNetworkHubs",
            ListFile::Form::Numbered};
}

setting::Field fact(const char* key, const char* control, const char* label)
{
    return setting::text(key, control, label, "")
        .explained("Appears in the welcome information that users are shown.");
}

RowListDeclaration declaredHubs()
{
    RowListDeclaration hubs = listOf("Hub", Fewest::None);
    hubs.list = "lvwHubs";
    hubs.toolbar = "tlbHubs";
    hubs.label = "Network Hubs";
    hubs.explanation = "Each row is a hub of the network, as users are shown it.";
    hubs.columns = {"HubName"};
    hubs.menu = "mnuFirst";
    hubs.deletion = deletionOf("Intro", "File"); // the words of other lists, which users know here
    hubs.load = loadOf(hubsFile());
    hubs.save = saveOf(hubsFile());
    hubs.restored = noRows;
    return hubs;
}

} // namespace

const TableFile& welcomeInfoSettings()
{
    static const TableFile file = {
        R"(Communication\WelcomeInfo\WelcomeInfoSettings.tbl)",
        "tWelcomeInfoSettings",
        {
            setting::flag("bShowOps", "chkCheckBox(0)", "Show Operators", true)
                .explained("Shows the operators in the welcome information."),
            setting::flag("bOnlyOnline", "chkCheckBox(1)", "Only Online Operators", true)
                .explained("Leaves operators who are not online out of the welcome information."),
            fact("sNetworkFounder", "txtTextBox(0)", "Network Founder"),
            fact("sNetworkName", "txtTextBox(1)", "Network Name"),
            fact("sNetworkFounded", "txtTextBox(2)", "Network Founded Date"),
            fact("sHubOwner", "txtTextBox(3)", "Hub Owner"),
            fact("sHubEmail", "txtTextBox(4)", "Hub Email"),
            fact("sHublistAddress", "txtTextBox(5)", "Hublist Address"),
            fact("sWebSite", "txtTextBox(6)", "Hub Web Site"),
            setting::rebuiltText("sMinShare", ""), // a save drops it, a rebuild has it again
            setting::enabledProfiles().explained("Turns the welcome information on for the ticked profiles."),
        },
        {"sNetworkFounder", "sNetworkName", "sNetworkFounded", "sHubOwner", "sHubEmail", "sHublistAddress",
         "sWebSite", "sMinShare", "bShowOps", "bOnlyOnline", "tEnabledProfiles"},
    };
    return file;
}

const RowListDeclaration& networkHubs()
{
    static const RowListDeclaration hubs = declaredHubs();
    return hubs;
}

FunctionDeclaration welcomeInfoFunction()
{
    return {.nodes = {{"Communication~WelcomeInfo", "WelcomeInfo"},
                      {"Communication~WelcomeInfo~Settings", "Settings",
                       settingsForm(
                           {"frmCommunicationWelcomeInfoSettings", "Communication ~ WelcomeInfo ~ Settings"},
                           welcomeInfoSettings),
                       "WelcomeInfo ~ Settings"},
                      {"Communication~WelcomeInfo~NetworkHubs", "Network Hubs",
                       listForm({"frmCommunicationWelcomeInfoNetworkHubs",
                                 "Communication ~ WelcomeInfo ~ NetworkHubs"},
                                networkHubs),
                       "Welcome Info ~ Network Hubs"}},
            .folders = {R"(Communication\WelcomeInfo)"},
            .build = {RebuiltSettings{welcomeInfoSettings}, emptyTable(hubsFile())}};
}

} // namespace quillfen
