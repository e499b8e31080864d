#include "functions/security/ptokax.h"

namespace quillfen {

const TableFile& ptokaXSettings()
{
    static const TableFile file = {
        R"(Security\PtokaX\PtokaXSettings.tbl)",
        "tPtokaXSettings",
        {setting::profileFlags("tEnabledGetProfiles", "lvwEnabledGetProfiles", "Enabled Get Profiles")
             .explained("Lets the ticked profiles read hub settings."),
         setting::profileFlags("tEnabledSetProfiles", "lvwEnabledSetProfiles", "Enabled Set Profiles")
             .explained("Lets the ticked profiles set hub settings.")}};
    return file;
}

FunctionDeclaration ptokaXSettingsFunction()
{
    return {
        .nodes = {{"Security~PtokaXSettings", "PtokaX Settings",
                   settingsForm({"frmSecurityPtokaXSettings", "Security~ PtokaXSettings"}, ptokaXSettings)}},
        .folders = {R"(Security\PtokaX)"},
        .build = {RebuiltSettings{ptokaXSettings}}};
}

} // namespace quillfen
