#include "functions/communication/welcomeinfo.h"

namespace quillfen {
namespace {

ListFile hubsFile()
{
    return {R"(Communication\WelcomeInfo\WelcomeInfoNetworkHubs.tbl)", "tWelcomeInfoNetworkHubs",
            ListFile::Form::Numbered};
}

RowListDeclaration declaredHubs()
{
    RowListDeclaration hubs = listOf("Hub", Fewest::None);
    hubs.list = "lvwHubs";
    hubs.toolbar = "tlbHubs";
    hubs.label = "Network Hubs";
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
            setting::flag("bShowOps", "chkCheckBox(0)", "Show Operators", true),
            setting::flag("bOnlyOnline", "chkCheckBox(1)", "Only Online Operators", true),
            setting::text("sNetworkFounder", "txtTextBox(0)", "Network Founder", ""),
            setting::text("sNetworkName", "txtTextBox(1)", "Network Name", ""),
            setting::text("sNetworkFounded", "txtTextBox(2)", "Network Founded Date", ""),
            setting::text("sHubOwner", "txtTextBox(3)", "Hub Owner", ""),
            setting::text("sHubEmail", "txtTextBox(4)", "Hub Email", ""),
            setting::text("sHublistAddress", "txtTextBox(5)", "Hublist Address", ""),
            setting::text("sWebSite", "txtTextBox(6)", "Hub Web Site", ""),
            setting::rebuiltText("sMinShare", ""), // a save drops it, a rebuild has it again
            setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles"),
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
