#include "functions/communication/clock.h"
#include "functions/communication/welcomeinfo.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class WelcomeInfo : public testing::Test
{
protected:
    WelcomeInfo()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    test::Hub hub{"Communication", "Communication/WelcomeInfo", "Communication/Clock"};
    std::string& settings = hub.file("Communication/WelcomeInfo/WelcomeInfoSettings.tbl");
    std::string& hubs = hub.file("Communication/WelcomeInfo/WelcomeInfoNetworkHubs.tbl");
    std::string& clock = hub.file("Communication/Clock/ClockSettings.tbl");
};

TEST_F(WelcomeInfo, AFreshBuildWritesTheDefaultsAndNoHub)
{
    hub.store.files.erase(hub.root + "/Communication/WelcomeInfo/WelcomeInfoNetworkHubs.tbl");
    buildFunction(welcomeInfoFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("communication/WelcomeInfoSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(hub.file("Communication/WelcomeInfo/WelcomeInfoNetworkHubs.tbl"),
                          "tWelcomeInfoNetworkHubs = {\r\n}\r\n"));
    const auto values = luaValues(settings);
    EXPECT_EQ(values.at("tWelcomeInfoSettings.sMinShare"), "");
    EXPECT_EQ(values.at("tWelcomeInfoSettings.bShowOps"), "1");
    EXPECT_EQ(values.size(), 14U);
}

TEST_F(WelcomeInfo, ARebuildAfterASaveHasTheMinimumShareAgainEmpty)
{
    settings = golden("communication/WelcomeInfoSettings.save.tbl");
    hubs = "mine";
    buildFunction(welcomeInfoFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("communication/WelcomeInfoSettings.rebuild.tbl")));
    EXPECT_EQ(luaValues(settings).at("tWelcomeInfoSettings.sWebSite"), "www.example.com");
    EXPECT_EQ(hubs, "mine");
}

TEST_F(WelcomeInfo, ARebuildKeepsAMinimumShareThatIsThere)
{
    settings = "tWelcomeInfoSettings = {\r\n\tsMinShare = \"1\",\r\n}\r\n";
    buildFunction(welcomeInfoFunction(), hub.files, hub.profiles);
    EXPECT_NE(settings.find("\tsWebSite = \"\",\r\n\tsMinShare = \"1\",\r\n\tbShowOps = 1,\r\n"),
              std::string::npos);
}

TEST_F(WelcomeInfo, AFreshClockShows60BstAndGmt)
{
    buildFunction(clockFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(clock, golden("communication/ClockSettings.build.tbl")));
    const auto values = luaValues(clock);
    EXPECT_EQ(values.at("tClockSettings.iDelay"), "60");
    EXPECT_EQ(values.at("tClockSettings.sDaylightSaving"), "BST");
    EXPECT_EQ(values.at("tClockSettings.tEnabledProfiles.2"), "0");
    EXPECT_EQ(values.size(), 8U);
}

TEST_F(WelcomeInfo, ARebuiltClockKeepsItsValuesInTheSameOrder)
{
    clock = "tClockSettings = {\r\n\tsStandardTime = \"CET\",\r\n\tsDaylightSaving = \"CEST\",\r\n"
            "\tiDelay = 300,\r\n\tbManualControl = 1,\r\n"
            "\ttEnabledProfiles = {\r\n\t\t[2] = 1,\r\n\t},\r\n}\r\n";
    buildFunction(clockFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(clock, golden("communication/ClockSettings.save.tbl")));
}

} // namespace
} // namespace quillfen
