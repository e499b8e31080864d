#include "portal/portalsettings.h"
#include "settings/bottables.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>
#include <numeric>
#include <set>

namespace quillfen {
namespace {

using test::golden;
using test::sameBytes;
using Strings = std::vector<std::string>;

const PortalSettings twoHubs = {
    {"bridge", "The bridge", "bridge@hub", "10.0.0.1"},
    {{"one.hub:411", "secret", "5001", "one.hub:411"}, {"two.hub:412", "", "5002", "two.hub:412"}},
    {"spam", "Loud"}};

class PortalFile : public testing::Test
{
protected:
    test::Hub hub{"General", "General/Bots", "Communication", "Communication/Portal"};
    std::string& settings = hub.file("Communication/Portal/PortalSettings.tbl");
    std::string& bots = hub.file("General/Bots/Bots.tbl");

    PortalSettings load() { return loadPortalSettings(hub.files); }
};

TEST_F(PortalFile, IsWrittenInItsOrder)
{
    savePortalSettings(hub.files, twoHubs);
    EXPECT_TRUE(sameBytes(settings, golden("portal/PortalSettings.save.tbl")));
}

TEST_F(PortalFile, ComesBackAsItWasSaved)
{
    savePortalSettings(hub.files, twoHubs);
    EXPECT_EQ(load().user, twoHubs.user);
    EXPECT_EQ(load().hubs, twoHubs.hubs);
    EXPECT_EQ(load().ignoreNicks, twoHubs.ignoreNicks);
}

TEST_F(PortalFile, DoesNotLoadInTheHubScriptForItsOuterTableIsNeverClosed)
{
    EXPECT_THROW(test::luaValues(golden("portal/PortalSettings.save.tbl")), std::runtime_error);
    const auto values = test::luaValues(golden("portal/PortalSettings.save.tbl") + '}');
    EXPECT_EQ(values.at("tPortalSettings.tUser.sUsername"), "bridge");
    EXPECT_EQ(values.at("tPortalSettings.tHubs.2.sClientPort"), "5002");
    EXPECT_EQ(values.at("tPortalSettings.tIgnoreNicks.2"), "Loud");
}

TEST_F(PortalFile, OfNothingHasItsTablesAllTheSame)
{
    EXPECT_EQ(composedPortalSettings({}),
              "tPortalSettings = {\r\n\ttUser = {\r\n\t\tsUsername = \"\",\r\n\t\tsDescription = \"\",\r\n"
              "\t\tsEmail = \"\",\r\n\t\tsClientIP = \"\",\r\n\t},\r\n\ttHubs = {\r\n\t},\r\n"
              "\ttIgnoreNicks = {\r\n\t},");
}

TEST_F(PortalFile, GetsItsFolderAtTheFirstSave)
{
    hub.store.folders.erase(hub.root + "/Communication/Portal");
    hub.store.folders.erase(hub.root + "/Communication");
    savePortalSettings(hub.files, twoHubs);
    EXPECT_EQ(hub.store.log,
              (Strings{"make " + hub.root + "/Communication", "make " + hub.root + "/Communication/Portal",
                       "write " + hub.root + "/Communication/Portal/PortalSettings.tbl"}));
    savePortalSettings(hub.files, twoHubs);
    EXPECT_EQ(hub.store.log.size(), 4U);
}

TEST_F(PortalFile, TellsAFailedWrite)
{
    hub.store.failingCall = 0;
    EXPECT_THROW(savePortalSettings(hub.files, twoHubs), StoreError);
}

TEST_F(PortalFile, ReadsAsEmptyWhenMissing)
{
    hub.store.files.clear();
    const auto empty = load();
    EXPECT_EQ(empty.user, PortalSettings().user);
    EXPECT_TRUE(empty.hubs.empty());
    EXPECT_TRUE(empty.ignoreNicks.empty());
}

TEST_F(PortalFile, DropsAThirdHub)
{
    auto three = twoHubs;
    three.hubs.push_back({"three.hub:413", "x", "5003"});
    savePortalSettings(hub.files, three);
    EXPECT_EQ(load().hubs, twoHubs.hubs);
}

TEST_F(PortalFile, DoesNotShowAHubWithoutAnAddress)
{
    auto odd = twoHubs;
    odd.hubs[0].address = "";
    savePortalSettings(hub.files, odd);
    EXPECT_EQ(load().hubs, std::vector<HubRow>{twoHubs.hubs[1]});
}

TEST_F(PortalFile, ReadsTheSecondHubWithoutAFirst)
{
    settings = "tPortalSettings = {\r\n\ttHubs = {\r\n\t\t[2] = {\r\n\t\t\tsHubAddress = \"two.hub:412\",\r\n"
               "\t\t\tsClientPassword = \"p\",\r\n\t\t\tsClientPort = \"5002\",\r\n\t\t},\r\n\t},\r\n";
    EXPECT_EQ(load().hubs, (std::vector<HubRow>{{"two.hub:412", "p", "5002", "two.hub:412"}}));
    savePortalSettings(hub.files, load());
    EXPECT_NE(settings.find("\t\t[1] = {\r\n\t\t\tsHubAddress = \"two.hub:412\",\r\n"), std::string::npos);
}

TEST_F(PortalFile, IgnoresTheSystemsOwnBotsByDefault)
{
    bots = "tBots = {\r\n"
           "\ttMain = {\r\n\t\tsName = \"\x95Quillfen\x95\",\r\n\t},\r\n";
    for (const auto function : botFunctions()) {
        if (function != "Main")
            bots += "\t" + botTable(function) + " = {\r\n\t\tsName = \"" +
                    (function == "Trivia"    ? "quizzer"
                     : function == "Hangman" ? "quiz"
                     : function == "Numbers" ? "Quizbot"
                                             : "Zorro") +
                    "\",\r\n\t},\r\n";
    }
    bots += "}\r\n";
    EXPECT_EQ(defaultIgnoreNicks(hub.files),
              (Strings{"quiz", "Quizbot", "quizzer", "Zorro", "\x95Quillfen\x95"}));
}

TEST_F(PortalFile, BotsAreSortedWithoutRegardToCase)
{
    bots = "tBots = {\r\n";
    for (const auto function : botFunctions())
        bots += "\t" + botTable(function) + " = {\r\n\t\tsName = \"" +
                (function == "Main"     ? "Zz"
                 : function == "Trivia" ? "zA"
                 : function == "Rules"  ? "A1"
                                        : "a0") +
                "\",\r\n\t},\r\n";
    EXPECT_EQ(defaultIgnoreNicks(hub.files), (Strings{"a0", "A1", "zA", "Zz"}));
}

TEST_F(PortalFile, MissingBotsGiveOneEmptyNick)
{
    EXPECT_EQ(defaultIgnoreNicks(hub.files), Strings{""});
}

TEST(BotTables, AreOneForEachFunctionThatSpeaks)
{
    const auto functions = botFunctions();
    EXPECT_EQ(functions.size(), 57U);
    EXPECT_EQ(std::set<std::string_view>(functions.begin(), functions.end()).size(), functions.size());
    const auto line = std::accumulate(
        functions.begin(), functions.end(), std::string(),
        [](const std::string& sum, std::string_view each) { return sum + ',' + botTable(each); });
    EXPECT_EQ(line,
              ",tMain,tChatRooms,tMassMessage,tMOTD,tMute,tRotatingMainMessage,tRotatingPrivateMessage,tTalk,"
              "tWelcomeInfo,tWhisper,tDescriptionTags,tIntroOutro,tAnagrams,tCodeBreaker,tGuessTheNumber,"
              "tHangman,tNumbers,tRussianRoulette,tSlotMachine,tThreeCardMonty,tTrivia,tAntiAdvertise,"
              "tAntiVirus,tBadNickBlocker,tClientChecker,tCloneBlocker,tCommandSpy,tFlood,tHideShare,tKicks,"
              "tMainBlock,tMainCleaner,tMainLock,tPrivateHub,tPtokaXSettings,tRegistration,tRules,tSearchSpy,"
              "tUserLog,tAscii,tAttacks,tAutoCorrect,tClock,tDoAction,tInsults,tJokes,tLimericks,"
              "tProfileRules,tProverbs,tQuotations,tSpells,tBookshelf,tDVDRack,tJukebox,tSongbook,tArcade,"
              "tHyperlink");
}

} // namespace
} // namespace quillfen
