#include "functions/security/antiadvertise.h"

#include "functions/security/shared/actions.h"

namespace quillfen {
namespace {

constexpr const char* blockedActions[] = {"Main",     "PM",          "Nick",           "Description",
                                          "Anagrams", "CodeBreaker", "GuessTheNumber", "Hangman",
                                          "Numbers",  "Trivia"};

/// The same file as blockedActionsFile(), as a build fills it.
TableFile declaredActions()
{
    TableFile file{blockedActionsFile().path, blockedActionsFile().table, {}};
    for (const std::string name : blockedActions)
        file.settings.emplace_back(setting::flag("b" + name, "lvwBlockedActions", name, true));
    return file;
}

ListFile addressFile(const std::string& word)
{
    return {R"(Security\AntiAdvertise\AntiAdvertise)" + word + "Addresses.tbl",
            "tAntiAdvertise" + word + "Addresses"};
}

RowListDeclaration addressList(const std::string& word)
{
    const std::string noun = word + " Address";
    RowListDeclaration list = listOf(noun, Fewest::One);
    list.list = "lvw" + word + "Addresses";
    list.toolbar = "tlb" + word + "Addresses";
    list.label = noun + "es";
    list.columns = {"Address"};
    list.deletion = deletionOf("Intro", "File", noun); // worded as that of the intros
    list.load = loadOf(addressFile(word));
    list.save = saveOf(addressFile(word));
    list.restored = noRows;
    return list;
}

TableFile declaredAntiAdvertiseSettings()
{
    auto ipBlock = setting::flag("bEnableIPBlock", "chkCheckBox(0)", "Enable IP Block", true);
    ipBlock.toolTip = "Allows IPs beginning with 0 (such as 0.3.6.0)";
    return {
        R"(Security\AntiAdvertise\AntiAdvertiseSettings.tbl)",
        "tAntiAdvertiseSettings",
        {
            ipBlock,
            setting::flag("bSilentMode", "chkCheckBox(1)", "Enable Silent Mode", true),
            setting::flag("bAllowToOps", "chkCheckBox(2)", "Allow In PM to Ops", true)
                .explained("Allows advertising in private messages to operators."),
            banTimeSetting("iTempBanTime"),
            actionSetting("TempBan"),
            notRestored(setting::profileFlags("tBlockedProfiles", "lvwBlockedProfiles", "Blocked Profiles")
                            .explained("Has the check cover the ticked profiles.")),
        },
    };
}

TickList actionTicks()
{
    return {.control = "lvwBlockedActions",
            .caption = {},
            .file = blockedActionsFile(),
            .label = "Blocked Actions",
            .restoreTicks = false,
            .explanation = "Looks for advertising at the ticked places and in the ticked games."};
}

} // namespace

const TableFile& antiAdvertiseSettings()
{
    static const TableFile file = declaredAntiAdvertiseSettings();
    return file;
}

const ListFile& blockedActionsFile()
{
    static const ListFile file = {R"(Security\AntiAdvertise\AntiAdvertiseBlockedActions.tbl)",
                                  "tAntiAdvertiseBlockedActions", ListFile::Form::Flags};
    return file;
}

const RowListDeclaration& blockedAddresses()
{
    static const RowListDeclaration list = [] {
        RowListDeclaration blocked = addressList("Blocked");
        blocked.explanation = "Each row is a text that counts as advertising another hub.";
        blocked.menu = "mnuFirst";
        return blocked;
    }();
    return list;
}

const RowListDeclaration& allowedAddresses()
{
    static const RowListDeclaration list = [] {
        RowListDeclaration allowed = addressList("Allowed");
        allowed.explanation = "Each row is a text that doesn't count as advertising.";
        allowed.menu = "mnuSecond";
        return allowed;
    }();
    return list;
}

FunctionDeclaration antiAdvertiseFunction()
{
    const FormDescription settings = {.name = "frmSecurityAntiAdvertiseSettings",
                                      .caption = "Security ~ AntiAdvertise ~  Settings",
                                      .parts = FormDescription::Parts::Beside};
    const FormDescription addresses = {.name = "frmSecurityAntiAdvertiseAddresses",
                                       .caption = "Security ~ AntiAdvertise",
                                       .parts = FormDescription::Parts::Beside};
    // Each new file opens with the other's table. Both are empty, so that the form shows nothing wrong, and
    // its first save gives each its own.
    const ListFile blocked = addressFile("Blocked");
    const ListFile allowed = addressFile("Allowed");
    return {.nodes = {{"Security~AntiAdvertise", "AntiAdvertise"},
                      {"Security~AntiAdvertise~Settings",
                       "Settings",
                       {{settings, {DeclaredSettings{antiAdvertiseSettings}, DeclaredTicks{actionTicks}}}},
                       "AntiAdvertise ~ Settings"},
                      {"Security~AntiAdvertise~Addresses",
                       "Addresses",
                       {{addresses, {listPart(blockedAddresses), listPart(allowedAddresses)}}},
                       "AntiAdvertise ~ Addresses"}},
            .folders = {R"(Security\AntiAdvertise)"},
            .build = {RebuiltSettings{antiAdvertiseSettings}, RebuiltSettings{declaredActions},
                      EmptyTable{allowed.path, blocked.table}, EmptyTable{blocked.path, allowed.table}}};
}

} // namespace quillfen
