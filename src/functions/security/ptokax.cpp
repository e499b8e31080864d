#include "functions/security/ptokax.h"

namespace quillfen {

const TableFile& ptokaXSettings()
{
    static const TableFile file = {
        R"(Security\PtokaX\PtokaXSettings.tbl)",
        "tPtokaXSettings",
        {setting::profileFlags("tEnabledGetProfiles", "lvwEnabledGetProfiles", "Enabled Get Profiles"),
         setting::profileFlags("tEnabledSetProfiles", "lvwEnabledSetProfiles", "Enabled Set Profiles")}};
    return file;
}

void buildPtokaXSettings(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(ptokaXSettings(), files, profiles);
}

} // namespace quillfen
