#include "functions/general/bots.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>
#include <set>

namespace quillfen {
namespace {

using test::golden;
using test::sameBytes;

class Bots : public testing::Test
{
protected:
    Bots() { hub.profiles.add("Master"); }

    test::Hub hub{"General", "General/Bots"};
    std::string& settings = hub.file("General/Bots/BotSettings.tbl");
};

TEST_F(Bots, AFreshBuildGivesEachGroupItsBot)
{
    buildFunction(botsFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(
        settings, "tBotSettings = {\r\n\tbNotifyOps = 0,\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n"
                  "\t\t[0] = 0,\r\n\t},\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(hub.file("General/Bots/Bots.tbl"), golden("general/Bots.build.tbl")));
}

TEST_F(Bots, ARebuildKeepsSettingsAndLeavesTheBotsAlone)
{
    settings =
        "tBotSettings = {\r\n\tbNotifyOps = 1,\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 1,\r\n\t},\r\n}\r\n";
    hub.file("General/Bots/Bots.tbl") = "mine";
    buildFunction(botsFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(
        settings, "tBotSettings = {\r\n\tbNotifyOps = 1,\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 1,\r\n"
                  "\t\t[0] = 0,\r\n\t},\r\n}\r\n"));
    EXPECT_EQ(hub.file("General/Bots/Bots.tbl"), "mine");
}

TEST_F(Bots, AFunctionWithoutABlockHasTheDefaultsOfItsGroup)
{
    hub.file("General/Bots/Bots.tbl") =
        "tBots = {\r\n\ttWhisper = {\r\n\t\tsName = \"Shh\",\r\n\t\tsDesc = \"\",\r\n"
        "\t\tsEmail = \"\",\r\n\t\tbIsReg = 0,\r\n\t\tsFunction = \"Mine\",\r\n\t},\r\n"
        "\ttMute = {\r\n\t\tbIsReg = 0,\r\n\t},\r\n}\r\n";
    const auto rows = bots().load(hub.files, hub.profiles);
    ASSERT_EQ(rows.size(), 57U);
    EXPECT_EQ(rows.front().cells, (std::vector<std::string>{"Main", "\x95Quillfen\x95",
                                                            "\x95"
                                                            "Book Of Magic\x95",
                                                            "quillfen@example.com", "Main"}));
    const auto& whisper = rows[9].cells;
    EXPECT_EQ(whisper, (std::vector<std::string>{"Whisper", "Shh", "", "", "Mine"}));
    EXPECT_EQ(rows[4].cells, (std::vector<std::string>{"Mute", "", "", "", ""})); // an empty block is one too
}

TEST_F(Bots, TheArchivesNickIsTheUserActionsOne)
{
    const auto last = bots().restored(hub.profiles).back().cells;
    EXPECT_EQ(last[4], "TheArchive");
    EXPECT_EQ(last[1], "\x95UserActionBot\x95");
    EXPECT_EQ(last[2], "\x95TheArchive Bot\x95");
}

TEST_F(Bots, TheHubScriptSeesEachBot)
{
    const auto values = test::luaValues(golden("general/Bots.build.tbl"));
    EXPECT_EQ(values.size(), 57U * 5U);
    EXPECT_EQ(values.at("tBots.tHideShare.sFunction"), "Security");
    EXPECT_EQ(values.at("tBots.tAutoCorrect.sFunction"), "UserAction");
    EXPECT_EQ(values.at("tBots.tClock.sFunction"), "UserAction");
    EXPECT_EQ(values.at("tBots.tProfileRules.sFunction"), "UserAction");
    EXPECT_EQ(values.at("tBots.tMain.sName"), "\x95Quillfen\x95");
    EXPECT_EQ(values.at("tBots.tMain.bIsReg"), "0");
}

TEST_F(Bots, ANickWithAQuoteBreaksTheRowForTheHubScript)
{
    auto rows = bots().load(hub.files, hub.profiles);
    rows[0].cells[1] = "a\"b";
    bots().save(hub.files, hub.profiles, rows);
    EXPECT_NE(hub.file("General/Bots/Bots.tbl").find("sName = \"a\"b\","), std::string::npos);
    EXPECT_THROW(test::luaValues(hub.file("General/Bots/Bots.tbl")), std::runtime_error);
}

} // namespace
} // namespace quillfen
