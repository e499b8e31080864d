#include "functions/security/privatehub.h"

#include "settings/lines.h"

namespace quillfen {
namespace {

/// The check box is ticked by any number above 0, where every other one wants a 1.
std::string tickAboveZero(const std::string& stored)
{
    return leadingNumber(stored) > 0 ? "1" : "0";
}

/// The rebuild looks for the three single values under swapped names, finds none, and writes their defaults
/// each time: an owner's redirect address is lost. The profiles' flags are kept.
Setting reset(Setting setting)
{
    setting.resets = true;
    return setting;
}

Setting restriction(Setting setting)
{
    setting.nest = "tRestrictPMs";
    return reset(setting);
}

/// The label says disabled and the heading says enabled; a ticked row is a 1 in `tDisabled`.
Setting disabled(const std::string& word, const std::string& label, const std::string& column)
{
    Setting setting = profileFlags("t" + word, "lvwDisabled" + word, label);
    setting.column = column;
    setting.nest = "tDisabled";
    return setting;
}

TableFile declared()
{
    Setting regBeforePM = restriction(flag("bRegBeforePM", "chkCheckBox", "Reg Before PM", "1"));
    regBeforePM.shown = tickAboveZero;
    return {
        R"(Security\PrivateHub\PrivateHubSettings.tbl)",
        "tPrivateHubSettings",
        {
            reset(text("sRedirectAddress", "txtTextBox", "Redirect Address", "")),
            restriction(number("iPreventPMTime", "txtUpDown", "Delay Before PM", "5", 1, 720)),
            regBeforePM,
            disabled("Downloads", "Disabled Downloads", "Enabled Downloads"),
            disabled("Main", "Disabled Main", "Enabled Main"),
            disabled("PMs", "Disabled PM", "Enabled PMs"),
            disabled("Profiles", "Disabled Profiles", "Enabled Profiles"),
            disabled("Searches", "Disabled Searches", "Enabled Searches"),
        },
        {"sRedirectAddress", "iPreventPMTime", "bRegBeforePM", "tProfiles", "tMain", "tPMs", "tDownloads",
         "tSearches"},
    };
}

} // namespace

const TableFile& privateHubSettings()
{
    static const TableFile file = declared();
    return file;
}

FunctionDeclaration privateHubFunction()
{
    return {.nodes = {{"Security~PrivateHub", "Private Hub",
                       settingsForm({"frmSecurityPrivateHub", "Security~ PrivateHub"}, privateHubSettings)}},
            .folders = {R"(Security\PrivateHub)"},
            .build = {RebuiltSettings{privateHubSettings}}};
}

} // namespace quillfen
