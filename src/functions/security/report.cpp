#include "functions/security/report.h"

namespace quillfen {

const TableFile& reportSettings()
{
    static const TableFile file = {
        R"(Security\Report\ReportSettings.tbl)",
        "tReportSettings",
        {setting::enabledProfiles().explained("Lets the ticked profiles use the report command.")}};
    return file;
}

FunctionDeclaration reportFunction()
{
    return {.nodes = {{"Security~Report", "Report",
                       settingsForm({"frmSecurityReport", "Security ~ Report"}, reportSettings)}},
            .folders = {R"(Security\Report)"},
            .build = {RebuiltSettings{reportSettings}}};
}

} // namespace quillfen
