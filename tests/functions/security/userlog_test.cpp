#include "functions/security/securitytest.h"
#include "functions/security/userlog.h"

namespace quillfen {
namespace {

using test::luaValues;
using test::sameBytes;

class UserLog : public test::SecurityFiles
{
protected:
    std::string& settings = file("UserLog/UserLogSettings.tbl");
    void build() { buildFunction(userLogFunction(), hub.files, hub.profiles); }
};

TEST_F(UserLog, AFreshBuildWritesTheDefaultsAndTheScriptsEmptyTables)
{
    build();
    EXPECT_TRUE(sameBytes(settings, golden("UserLog.build.tbl")));
    EXPECT_EQ(file("UserLog/UserLog.tbl"), "tUserLog = {\r\n}\r\n");
    EXPECT_EQ(file("UserLog/UserLogImmuneList.tbl"), "tUserLogImmuneList = {\r\n}\r\n");
}

TEST_F(UserLog, ARebuildKeepsWhatIsThereInItsOwnOrder)
{
    settings = golden("UserLog.save.tbl");
    file("UserLog/UserLog.tbl") = "tUserLog = {\r\n\t[\"Ann\"] = 1,\r\n}\r\n";
    file("UserLog/UserLogImmuneList.tbl") = "tUserLogImmuneList = {\r\n\t[\"Bob\"] = 1,\r\n}\r\n";
    build();
    EXPECT_TRUE(sameBytes(settings, golden("UserLog.rebuild.tbl")));
    EXPECT_EQ(file("UserLog/UserLog.tbl"), "tUserLog = {\r\n\t[\"Ann\"] = 1,\r\n}\r\n");
    EXPECT_EQ(file("UserLog/UserLogImmuneList.tbl"), "tUserLogImmuneList = {\r\n\t[\"Bob\"] = 1,\r\n}\r\n");
}

TEST_F(UserLog, TheHubScriptSeesItsValues)
{
    EXPECT_EQ(luaValues(golden("UserLog.build.tbl")).at("tUserLogSettings.iTopHubbers"), "25");
    const auto values = luaValues(golden("UserLog.save.tbl"));
    EXPECT_EQ(values.size(), 15U);
    EXPECT_EQ(values.at("tUserLogSettings.bEnableCleaner"), "0");
    EXPECT_EQ(values.at("tUserLogSettings.iCleanerTime"), "2359");
    EXPECT_EQ(values.at("tUserLogSettings.tEnabledProfiles.0"), "1");
    EXPECT_EQ(values.at("tUserLogSettings.tEnabledLogProfiles.2"), "1");
    EXPECT_EQ(values, luaValues(golden("UserLog.rebuild.tbl")));
}

} // namespace
} // namespace quillfen
