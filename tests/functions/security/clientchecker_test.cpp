#include "functions/security/clientchecker.h"
#include "functions/security/securitytest.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class ClientChecker : public test::SecurityFiles
{
protected:
    std::string& settings = file("ClientChecker/ClientCheckerSettings.tbl");
    std::string& versions = file("ClientChecker/ClientVersions.tbl");
};

TEST_F(ClientChecker, AFreshBuildWritesTheDefaults)
{
    hub.store.files.clear();
    buildFunction(clientCheckerFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(
        sameBytes(file("ClientChecker/ClientCheckerSettings.tbl"), golden("ClientChecker.build.tbl")));
    EXPECT_EQ(file("ClientChecker/ClientVersions.tbl"), "tClientVersions = {\r\n}\r\n");
}

TEST_F(ClientChecker, ARebuildKeepsAllButTheConnectionTypesWhichItResets)
{
    settings = golden("ClientChecker.save.tbl");
    versions = golden("ClientVersions.save.tbl");
    buildFunction(clientCheckerFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("ClientChecker.rebuild.tbl")));
    EXPECT_TRUE(sameBytes(versions, golden("ClientVersions.save.tbl")));
}

TEST_F(ClientChecker, AValueHoldsTheFlagAndTheVersion)
{
    versions = golden("ClientVersions.save.tbl");
    const auto rows = clientVersions().load(hub.files, hub.profiles);
    EXPECT_EQ(rows, (std::vector<CellRow>{{{"QuickShare", "0.707", "True"}},
                                          {{"OldShare", "1.00", "False"}},
                                          {{"AnyShare", "", "True"}}}));
    clientVersions().save(hub.files, hub.profiles, rows);
    EXPECT_TRUE(sameBytes(versions, golden("ClientVersions.save.tbl")));
}

TEST_F(ClientChecker, OnlyANumberOfOneAllows)
{
    versions = "tClientVersions = {\r\n\t[\"a\"] = \"1.0^2\",\r\n\t[\"b\"] = \"yes^2\",\r\n\t[\"c\"] = "
               "\"2\",\r\n}\r\n";
    EXPECT_EQ(clientVersions().load(hub.files, hub.profiles),
              (std::vector<CellRow>{{{"a", "2", "True"}}, {{"b", "2", "False"}}, {{"c", "", "False"}}}));
    clientVersions().save(hub.files, hub.profiles, {{{"a", "2", "Maybe"}}});
    EXPECT_EQ(versions, "tClientVersions = {\r\n\t[\"a\"] = \"0^2\",\r\n}\r\n");
}

TEST_F(ClientChecker, TheHubScriptSeesItsValues)
{
    EXPECT_EQ(luaValues(golden("ClientVersions.save.tbl")),
              (LuaValues{{"tClientVersions.QuickShare", "1^0.707"},
                         {"tClientVersions.OldShare", "0^1.00"},
                         {"tClientVersions.AnyShare", "1^"}}));
    EXPECT_EQ(luaValues(golden("ClientChecker.save.tbl")),
              (LuaValues{{"tClientCheckerSettings.iBanTime", "7"},
                         {"tClientCheckerSettings.sAction", "D"},
                         {"tClientCheckerSettings.tBlock.bActive", "0"},
                         {"tClientCheckerSettings.tBlock.bPassive", "1"},
                         {"tClientCheckerSettings.tBlock.bSockets", "0"},
                         {"tClientCheckerSettings.tBlock.bUndeclared", "1"},
                         {"tClientCheckerSettings.tEnabledProfiles.-1", "0"},
                         {"tClientCheckerSettings.tEnabledProfiles.0", "0"},
                         {"tClientCheckerSettings.tEnabledProfiles.1", "1"},
                         {"tClientCheckerSettings.tEnabledProfiles.2", "1"}}));
    EXPECT_EQ(luaValues(golden("ClientChecker.rebuild.tbl")).at("tClientCheckerSettings.tBlock.bPassive"),
              "0");
}

} // namespace
} // namespace quillfen
