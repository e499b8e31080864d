#include "functions/security/privatehub.h"
#include "functions/security/securitytest.h"

namespace quillfen {
namespace {

using test::luaValues;
using test::sameBytes;

class PrivateHub : public test::SecurityFiles
{
protected:
    std::string& settings = file("PrivateHub/PrivateHubSettings.tbl");
};

TEST_F(PrivateHub, AFreshBuildWritesTheDefaults)
{
    buildFunction(privateHubFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("PrivateHub.build.tbl")));
}

TEST_F(PrivateHub, ARebuildLosesTheAddressAndTheRestrictionsAndKeepsTheLists)
{
    settings = golden("PrivateHub.save.tbl");
    buildFunction(privateHubFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("PrivateHub.rebuild.tbl")));
}

TEST_F(PrivateHub, AHubWritesFiveLinesForEachProfile)
{
    for (int more = 0; more < 60; ++more)
        hub.profiles.add("Profile " + std::to_string(more));
    buildFunction(privateHubFunction(), hub.files, hub.profiles);
    EXPECT_EQ(luaValues(settings).size(), 5U * 64 + 3);
}

TEST_F(PrivateHub, RegBeforePmIsTickedByAnyNumberAboveZero)
{
    const auto shown = [this](const std::string& stored) {
        const TableIndex index("tPrivateHubSettings = {\r\n\tbRegBeforePM = " + stored + ",\r\n}\r\n");
        return loaded(privateHubSettings(), index, hub.profiles).at("bRegBeforePM");
    };
    EXPECT_EQ(shown("1"), "1");
    EXPECT_EQ(shown("7"), "1");
    EXPECT_EQ(shown("0"), "0");
    EXPECT_EQ(shown("-1"), "0");
}

TEST_F(PrivateHub, TheHubScriptSeesItsValues)
{
    const auto values = luaValues(golden("PrivateHub.save.tbl"));
    EXPECT_EQ(values.size(), 23U);
    EXPECT_EQ(values.at("tPrivateHubSettings.sRedirectAddress"), "dc.example.com:411");
    EXPECT_EQ(values.at("tPrivateHubSettings.tRestrictPMs.iPreventPMTime"), "90");
    EXPECT_EQ(values.at("tPrivateHubSettings.tRestrictPMs.bRegBeforePM"), "0");
    EXPECT_EQ(values.at("tPrivateHubSettings.tDisabled.tDownloads.-1"), "1");
    EXPECT_EQ(values.at("tPrivateHubSettings.tDisabled.tDownloads.0"), "0");
    EXPECT_EQ(values.at("tPrivateHubSettings.tDisabled.tMain.0"), "1");
    EXPECT_EQ(values.at("tPrivateHubSettings.tDisabled.tPMs.1"), "1");
    EXPECT_EQ(values.at("tPrivateHubSettings.tDisabled.tProfiles.2"), "1");
    EXPECT_EQ(values.at("tPrivateHubSettings.tDisabled.tSearches.2"), "1");
}

} // namespace
} // namespace quillfen
