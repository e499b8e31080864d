#include "functions/security/antiadvertise.h"
#include "functions/security/securitytest.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class AntiAdvertise : public test::SecurityFiles
{
protected:
    std::string path(const char* name) { return std::string("AntiAdvertise/AntiAdvertise") + name + ".tbl"; }
    std::string& named(const char* name) { return file(path(name)); }
    void build() { buildFunction(antiAdvertiseFunction(), hub.files, hub.profiles); }
};

TEST_F(AntiAdvertise, AFreshBuildWritesTheDefaults)
{
    build();
    EXPECT_TRUE(sameBytes(named("Settings"), golden("AntiAdvertise.build.tbl")));
    EXPECT_TRUE(sameBytes(named("BlockedActions"), golden("BlockedActions.build.tbl")));
}

TEST_F(AntiAdvertise, ABuildCrossesTheTablesOfTheNewAddressFiles)
{
    build();
    EXPECT_EQ(named("AllowedAddresses"), "tAntiAdvertiseBlockedAddresses = {\r\n}\r\n");
    EXPECT_EQ(named("BlockedAddresses"), "tAntiAdvertiseAllowedAddresses = {\r\n}\r\n");
}

TEST_F(AntiAdvertise, ARebuildKeepsWhatTheFormsSaved)
{
    named("Settings") = golden("AntiAdvertise.save.tbl");
    named("BlockedActions") = golden("BlockedActions.save.tbl");
    named("BlockedAddresses") = golden("BlockedAddresses.save.tbl");
    named("AllowedAddresses") = golden("AllowedAddresses.save.tbl");
    build();
    EXPECT_TRUE(sameBytes(named("Settings"), golden("AntiAdvertise.save.tbl")));
    EXPECT_TRUE(sameBytes(named("BlockedActions"), golden("BlockedActions.save.tbl")));
    EXPECT_TRUE(sameBytes(named("BlockedAddresses"), golden("BlockedAddresses.save.tbl")));
    EXPECT_TRUE(sameBytes(named("AllowedAddresses"), golden("AllowedAddresses.save.tbl")));
}

TEST_F(AntiAdvertise, ANewProfileJoinsTheBlockedProfilesWithZero)
{
    named("Settings") = golden("AntiAdvertise.save.tbl");
    hub.profiles.add("Reg");
    build();
    const auto values = luaValues(named("Settings"));
    EXPECT_EQ(values.at("tAntiAdvertiseSettings.tBlockedProfiles.0"), "1");
    EXPECT_EQ(values.at("tAntiAdvertiseSettings.tBlockedProfiles.3"), "0");
}

TEST_F(AntiAdvertise, TheHubScriptSeesItsValues)
{
    EXPECT_EQ(luaValues(golden("AntiAdvertise.save.tbl")),
              (LuaValues{{"tAntiAdvertiseSettings.bAllowToOps", "0"},
                         {"tAntiAdvertiseSettings.bEnableIPBlock", "0"},
                         {"tAntiAdvertiseSettings.bSilentMode", "1"},
                         {"tAntiAdvertiseSettings.iTempBanTime", "1441"},
                         {"tAntiAdvertiseSettings.sAction", "B"},
                         {"tAntiAdvertiseSettings.tBlockedProfiles.-1", "1"},
                         {"tAntiAdvertiseSettings.tBlockedProfiles.0", "1"},
                         {"tAntiAdvertiseSettings.tBlockedProfiles.1", "0"},
                         {"tAntiAdvertiseSettings.tBlockedProfiles.2", "0"}}));
    const auto actions = luaValues(golden("BlockedActions.save.tbl"));
    EXPECT_EQ(actions.size(), 10U);
    EXPECT_EQ(actions.at("tAntiAdvertiseBlockedActions.bMain"), "1");
    EXPECT_EQ(actions.at("tAntiAdvertiseBlockedActions.bTrivia"), "0");
    EXPECT_EQ(luaValues(golden("BlockedAddresses.save.tbl")),
              (LuaValues{{"tAntiAdvertiseBlockedAddresses.1", "hub.example.com"},
                         {"tAntiAdvertiseBlockedAddresses.2", "no-ip"}}));
    EXPECT_EQ(luaValues(golden("AllowedAddresses.save.tbl")),
              (LuaValues{{"tAntiAdvertiseAllowedAddresses.1", "our.example.com"}}));
}

} // namespace
} // namespace quillfen
