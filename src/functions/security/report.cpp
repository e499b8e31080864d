#include "functions/security/report.h"

namespace quillfen {

const TableFile& reportSettings()
{
    static const TableFile file = {
        R"(Security\Report\ReportSettings.tbl)",
        "tReportSettings",
        {setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles")}};
    return file;
}

void buildReport(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(reportSettings(), files, profiles);
}

} // namespace quillfen
