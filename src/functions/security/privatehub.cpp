#include "functions/security/privatehub.h"

namespace quillfen {
namespace {

/// The rebuild looks for the three single values under swapped names, finds none, and writes their defaults
/// each time: an owner's redirect address is lost. The profiles' flags are kept.
setting::Field reset(setting::Field field)
{
    field.rebuild.resets = true;
    return field;
}

setting::Field restriction(setting::Field field)
{
    field.nest = "tRestrictPMs";
    return reset(field);
}

/// The label says disabled and the heading says enabled; a ticked row is a 1 in `tDisabled`.
Setting disabled(const std::string& word, const std::string& label, const std::string& heading,
                 std::string_view explanation)
{
    auto flags =
        setting::profileFlags("t" + word, "lvwDisabled" + word, label, heading).explained(explanation);
    flags.nest = "tDisabled";
    return flags;
}

TableFile declaredPrivateHubSettings()
{
    return {
        R"(Security\PrivateHub\PrivateHubSettings.tbl)",
        "tPrivateHubSettings",
        {
            reset(setting::text("sRedirectAddress", "txtTextBox", "Redirect Address", "")
                      .explained("Sets where users go who are refused entry.")),
            restriction(setting::number("iPreventPMTime", "txtUpDown", "Delay Before PM", 5, 1, 720)
                            .explained("Sets how long new users are held back from private messages.")),
            restriction(
                setting::flag("bRegBeforePM", "chkCheckBox", "Reg Before PM", true, {.tickedAboveZero = true})
                    .explained("Holds new users back from private messages until they are registered.")),
            disabled("Downloads", "Disabled Downloads", "Enabled Downloads",
                     "Takes downloads away from the ticked profiles."),
            disabled("Main", "Disabled Main", "Enabled Main",
                     "Takes main chat away from the ticked profiles."),
            disabled("PMs", "Disabled PM", "Enabled PMs",
                     "Takes private messages away from the ticked profiles."),
            disabled("Profiles", "Disabled Profiles", "Enabled Profiles",
                     "Refuses the ticked profiles entry to the hub."),
            disabled("Searches", "Disabled Searches", "Enabled Searches",
                     "Takes searches away from the ticked profiles."),
        },
        {"sRedirectAddress", "iPreventPMTime", "bRegBeforePM", "tProfiles", "tMain", "tPMs", "tDownloads",
         "tSearches"},
    };
}

} // namespace

const TableFile& privateHubSettings()
{
    static const TableFile file = declaredPrivateHubSettings();
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
