#include "functions/security/report.h"
#include "functions/security/securitytest.h"

namespace quillfen {
namespace {

using test::luaValues;
using test::sameBytes;

class Report : public test::SecurityFiles
{
protected:
    std::string& settings = file("Report/ReportSettings.tbl");
};

TEST_F(Report, AFreshBuildTicksNoProfile)
{
    buildFunction(reportFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("Report.build.tbl")));
}

TEST_F(Report, ARebuildKeepsWhatTheFormSaved)
{
    settings = golden("Report.save.tbl");
    buildFunction(reportFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("Report.save.tbl")));
}

TEST_F(Report, TheHubScriptSeesItsValues)
{
    const auto values = luaValues(golden("Report.save.tbl"));
    EXPECT_EQ(values.size(), 4U);
    EXPECT_EQ(values.at("tReportSettings.tEnabledProfiles.1"), "1");
    EXPECT_EQ(values.at("tReportSettings.tEnabledProfiles.2"), "0");
}

} // namespace
} // namespace quillfen
