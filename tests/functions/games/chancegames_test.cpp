#include "functions/games/russianroulette.h"
#include "functions/games/scoreclearers.h"
#include "functions/games/slotmachine.h"
#include "functions/games/threecardmonty.h"
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

class ChanceGames : public testing::Test
{
protected:
    test::Hub hub{"Games", "Games/RussianRoulette", "Games/ThreeCardMonty", "Games/SlotMachine",
                  "Games/Globals"};
    std::string& roulette = hub.file("Games/RussianRoulette/RussianRouletteSettings.tbl");
    std::string& monty = hub.file("Games/ThreeCardMonty/ThreeCardMontySettings.tbl");
    std::string& slots = hub.file("Games/SlotMachine/SlotMachineSettings.tbl");
    const std::string clearers = "Games/Globals/ScoreClearers.tbl";
};

TEST_F(ChanceGames, AFreshBuildOfRouletteWritesTheChambersBare)
{
    buildFunction(russianRouletteFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(roulette, golden("games/RussianRouletteSettings.build.tbl")));
}

TEST_F(ChanceGames, ARebuildWritesTheChambersBareAgainAndKeepsTheRest)
{
    roulette = golden("games/RussianRouletteSettings.save.tbl");
    buildFunction(russianRouletteFunction(), hub.files, hub.profiles);
    std::string expected = golden("games/RussianRouletteSettings.build.tbl");
    expected.replace(expected.find("bInMain = 1"), 11, "bInMain = 0");
    EXPECT_TRUE(sameBytes(roulette, expected));
}

TEST_F(ChanceGames, TheHubScriptSeesQuotedChambersOnly)
{
    // Bare words are names of nothing to Lua: its table stays empty.
    EXPECT_EQ(
        luaValues(golden("games/RussianRouletteSettings.build.tbl")),
        (LuaValues{{"tRussianRouletteSettings.bInMain", "1"}, {"tRussianRouletteSettings.tBang", "{}"}}));
    EXPECT_EQ(luaValues(golden("games/RussianRouletteSettings.save.tbl")),
              (LuaValues{{"tRussianRouletteSettings.bInMain", "0"},
                         {"tRussianRouletteSettings.tBang.1", "Die"},
                         {"tRussianRouletteSettings.tBang.2", "Live"},
                         {"tRussianRouletteSettings.tBang.3", "Die"},
                         {"tRussianRouletteSettings.tBang.4", "Die"},
                         {"tRussianRouletteSettings.tBang.5", "Die"},
                         {"tRussianRouletteSettings.tBang.6", "Die"}}));
}

TEST_F(ChanceGames, AFreshBuildSeedsEachListOfCommentsWithOne)
{
    hub.store.files.clear();
    buildFunction(russianRouletteFunction(), hub.files, hub.profiles);
    buildFunction(threeCardMontyFunction(), hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Games/RussianRoulette/RussianRouletteLive.tbl"),
              "tRussianRouletteLive = {\r\n\t\"You have survived... for now\",\r\n}\r\n");
    EXPECT_EQ(hub.file("Games/RussianRoulette/RussianRouletteDie.tbl"),
              "tRussianRouletteDie = {\r\n\t\"You're dead, now whose gonna clean up this mess?\",\r\n}\r\n");
    EXPECT_EQ(hub.file("Games/ThreeCardMonty/ThreeCardMontyWin.tbl"),
              "tThreeCardMontyWin = {\r\n\t\"The Gods smile upon you, this day\",\r\n}\r\n");
    EXPECT_EQ(
        hub.file("Games/ThreeCardMonty/ThreeCardMontyLose.tbl"),
        "tThreeCardMontyLose = {\r\n\t\"You lost. Play again, what else have you got going?\",\r\n}\r\n");
    EXPECT_EQ(luaValues(hub.file("Games/ThreeCardMonty/ThreeCardMontyWin.tbl")),
              (LuaValues{{"tThreeCardMontyWin.1", "The Gods smile upon you, this day"}}));
}

TEST_F(ChanceGames, ARebuildLeavesTheCommentsAlone)
{
    const char* const lists[] = {"RussianRoulette/RussianRouletteLive", "RussianRoulette/RussianRouletteDie",
                                 "ThreeCardMonty/ThreeCardMontyWin", "ThreeCardMonty/ThreeCardMontyLose"};
    for (const char* list : lists)
        hub.file(std::string("Games/") + list + ".tbl") = "mine";
    buildFunction(russianRouletteFunction(), hub.files, hub.profiles);
    buildFunction(threeCardMontyFunction(), hub.files, hub.profiles);
    for (const char* list : lists)
        EXPECT_EQ(hub.file(std::string("Games/") + list + ".tbl"), "mine");
}

TEST_F(ChanceGames, ARebuildSpellsTheCardsWithACapitalO)
{
    buildFunction(threeCardMontyFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(monty, golden("games/ThreeCardMontySettings.build.tbl")));
    monty = golden("games/ThreeCardMontySettings.save.tbl");
    buildFunction(threeCardMontyFunction(), hub.files, hub.profiles);
    const auto values = luaValues(monty);
    EXPECT_EQ(values.at("tThreeCardMontySettings.tDeal.1"), "Ace Of Spades");
    EXPECT_EQ(values.at("tThreeCardMontySettings.iWager"), "2");
    EXPECT_EQ(values.at("tThreeCardMontySettings.iMarker"), "26");
    EXPECT_EQ(values.at("tThreeCardMontySettings.bPlayInMain"), "0");
}

TEST_F(ChanceGames, AFreshSlotMachineHasItsConstantTables)
{
    hub.store.files.clear();
    buildFunction(slotMachineFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file("Games/SlotMachine/SlotMachineSettings.tbl"),
                          golden("games/SlotMachineSettings.build.tbl")));
    EXPECT_EQ(hub.file("Games/SlotMachine/SlotMachinePlayers.tbl"), "tSlotMachinePlayers = {\r\n}\r\n");
}

TEST_F(ChanceGames, ARebuildOfTheSlotMachineKeepsTheCreditsAndThePlayers)
{
    slots = golden("games/SlotMachineSettings.save.tbl");
    hub.file("Games/SlotMachine/SlotMachinePlayers.tbl") = "mine";
    buildFunction(slotMachineFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(slots, golden("games/SlotMachineSettings.save.tbl")));
    EXPECT_EQ(hub.file("Games/SlotMachine/SlotMachinePlayers.tbl"), "mine");
}

TEST_F(ChanceGames, TheHubScriptSeesTheResultsOfTheSlotMachine)
{
    const auto values = luaValues(golden("games/SlotMachineSettings.build.tbl"));
    EXPECT_EQ(values.size(), 18U);
    EXPECT_EQ(values.at("tSlotMachineSettings.tResults.Bar"), "100");
    EXPECT_EQ(values.at("tSlotMachineSettings.tResults.\xA3"), "5");
    EXPECT_EQ(values.at("tSlotMachineSettings.tResults.\xA7"), "3");
    EXPECT_EQ(values.at("tSlotMachineSettings.tAux.7"), "1");
    EXPECT_EQ(values.at("tSlotMachineSettings.iCreditPlay"), "2");
}

TEST_F(ChanceGames, AFreshTreeHasNoScoreClearers)
{
    hub.store.files.clear();
    buildFunction(scoreClearersFunction(), hub.files, hub.profiles);
    EXPECT_EQ(hub.file(clearers), "tScoreClearers = {\r\n}\r\n");
    hub.file(clearers) = "mine";
    buildFunction(scoreClearersFunction(), hub.files, hub.profiles);
    EXPECT_EQ(hub.file(clearers), "mine");
}

TEST_F(ChanceGames, ScoreClearersAreSavedByBeingThere)
{
    scoreClearers().save(hub.files, hub.profiles, {{{"Quill"}}, {{"[OP]Fen"}}});
    EXPECT_EQ(hub.file(clearers),
              "tScoreClearers = {\r\n\t[\"Quill\"] = 1,\r\n\t[\"[OP]Fen\"] = 1,\r\n}\r\n");
    EXPECT_EQ(luaValues(hub.file(clearers)),
              (LuaValues{{"tScoreClearers.Quill", "1"}, {"tScoreClearers.[OP]Fen", "1"}}));
    scoreClearers().save(hub.files, hub.profiles, {});
    EXPECT_EQ(hub.file(clearers), "tScoreClearers = {\r\n}\r\n");
}

TEST_F(ChanceGames, AClearerIsKnownInAnyCase)
{
    EXPECT_TRUE(isClearer({{{"Quill"}}}, "qUILL"));
    EXPECT_TRUE(isClearer({{{"\xC4rger"}}}, "\xE4RGER"));
    EXPECT_FALSE(isClearer({{{"Quill"}}}, "Quil"));
    EXPECT_FALSE(isClearer({}, ""));
}

} // namespace
} // namespace quillfen
