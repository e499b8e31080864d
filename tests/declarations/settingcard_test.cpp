#include "declarations/settingcard.h"
#include "settings/profiles.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using Lines = std::vector<std::string>;

HubProfiles hubProfiles()
{
    HubProfiles profiles;
    profiles.add("Master");
    return profiles;
}

SettingCard cardOf(const Setting& setting)
{
    const DeclaredSettings part{[&setting] { return TableFile{R"(A\B.tbl)", "t", {setting}}; }};
    return cardsOf(part, hubProfiles()).at(0);
}

TEST(Cards, TellSentenceRangeDefaultKeyAndFile)
{
    const auto field =
        setting::number("iTime", "txtUpDown(0)", "Time", 10, 1, 500).explained("How long it is.");
    const SettingCard card = cardOf(field);
    EXPECT_EQ(card.control, "txtUpDown(0)");
    EXPECT_EQ(linesOf(card),
              (Lines{"How long it is.", "Range: 1 to 500. Default: 10.", R"(iTime in A\B.tbl)"}));
}

TEST(Cards, TellWhatTheFileHoldsWhereItIsAnother)
{
    const SettingCard card = cardOf(setting::flag("bOn", "chk", "On", true));
    EXPECT_EQ(linesOf(card, "off"), (Lines{"Default: on.", "In the file: off.", R"(bOn in A\B.tbl)"}));
}

TEST(Cards, OfNamedTextsTellTheirKeyAndOfWhatHasNoControlAreNone)
{
    const setting::NamedTexts texts = {"tWords", "lvwWords", "Words", {{"sOne", "one"}}, "Tells words."};
    const SettingCard card = cardOf(Setting(texts));
    EXPECT_EQ(card.control, "lvwWords");
    EXPECT_EQ(linesOf(card), (Lines{"Tells words.", R"(tWords in A\B.tbl)"}));
    const Setting constant = setting::ConstantText{"sFive", "five"};
    const DeclaredSettings part{[&constant] { return TableFile{R"(A\B.tbl)", "t", {constant}}; }};
    EXPECT_TRUE(cardsOf(part, hubProfiles()).empty());
    EXPECT_EQ(controlOf(Setting(texts)), "lvwWords");
    EXPECT_EQ(controlOf(constant), "");
}

TEST(Cards, TellADefaultAsTheControlShowsIt)
{
    const auto shown = [](const Setting& setting) { return cardOf(setting).defaultValue; };
    EXPECT_EQ(shown(setting::flag("b", "c", "l", false)), "off");
    EXPECT_EQ(shown(setting::text("s", "c", "l", "")), "");
    EXPECT_EQ(shown(setting::entry("s", "c", "l", "one", {"one", "two"})), "one");
    EXPECT_EQ(shown(setting::options("i", "c", "l", 1, 0, {"A", "B"})), "B");
    EXPECT_EQ(shown(setting::letter("s", "c", "l", "TempBan", {"TempBan", "Kick"})), "TempBan");
    EXPECT_EQ(shown(setting::profileKey("i", "c", "l")), "Master");
    EXPECT_EQ(shown(setting::profileFlags("t", "c", "l")), std::nullopt);
    EXPECT_EQ(shown(setting::namedFlags("t", "c", "l", {"A"})), std::nullopt);
}

TEST(Cards, TellNoDefaultThatRestoreLeavesAlone)
{
    EXPECT_EQ(cardOf(setting::notRestored(setting::flag("b", "c", "l", false))).defaultValue, std::nullopt);
}

TEST(Cards, TellNoLimitOfATextWithoutOneAndNoProfileWhereThereIsNone)
{
    EXPECT_EQ(cardOf(setting::text("s", "c", "l", "x")).range, "");
    EXPECT_EQ(cardOf(setting::text("s", "c", "l", "x", 1)).range, "up to 1 characters");
    const DeclaredSettings part{[] {
        return TableFile{R"(A\B.tbl)", "t", {setting::profileKey("i", "c", "l")}};
    }};
    EXPECT_EQ(cardsOf(part, HubProfiles()).at(0).defaultValue, std::nullopt);
}

TEST(Cards, TellNothingAsNothing)
{
    EXPECT_EQ(
        linesOf(cardOf(setting::text("s", "c", "l", "", 24)), ""),
        (Lines{"Range: up to 24 characters. Default: nothing.", "In the file: nothing.", R"(s in A\B.tbl)"}));
}

/// What the cards of a part say: control, sentence, file and key of each.
std::vector<Lines> toldOf(const PartDeclaration& part)
{
    std::vector<Lines> told;
    for (const SettingCard& card : cardsOf(part, hubProfiles()))
        told.push_back({card.control, card.explanation, card.file, card.key});
    return told;
}

RowListDeclaration listNamed(const std::string& control, std::string_view explanation)
{
    RowListDeclaration list;
    list.list = control;
    list.explanation = explanation;
    return list;
}

TEST(Cards, TellOfEachKindOfPart)
{
    const auto one = [](const HubProfiles& = {}) { return listNamed("lvwOne", "One."); };
    EXPECT_EQ(toldOf(DeclaredList{one}), (std::vector<Lines>{{"lvwOne", "One.", "", ""}}));
    EXPECT_EQ(toldOf(DeclaredLists{[&one] {
                  return RowListGroup{{one(), listNamed("lvwTwo", "Two.")}, {}};
              }}),
              (std::vector<Lines>{{"lvwOne", "One.", "", ""}, {"lvwTwo", "Two.", "", ""}}));
    EXPECT_EQ(toldOf(DeclaredTexts{[&one] { return one(); }, "A"}),
              (std::vector<Lines>{{"lvwOne", "One.", "", ""}}));
    DeclaredGrid grid;
    grid.words.list = "lvwGrid";
    grid.words.explanation = "Grid.";
    EXPECT_EQ(toldOf(grid), (std::vector<Lines>{{"lvwGrid", "Grid.", "", ""}}));
    DeclaredText text;
    text.toolbar = "tlbText";
    text.explanation = "Text.";
    text.path = "A.txt";
    EXPECT_EQ(toldOf(text), (std::vector<Lines>{{"tlbText", "Text.", "A.txt", ""}}));
    EXPECT_EQ(toldOf(DeclaredTicks{[] {
                  TickList ticks;
                  ticks.control = "lvwTicks";
                  ticks.explanation = "Ticks.";
                  ticks.file.path = "A.tbl";
                  return ticks;
              }}),
              (std::vector<Lines>{{"lvwTicks", "Ticks.", "A.tbl", ""}}));
}

TEST(Cards, TellOfAnOwnPartItsFilesItsListsAndWhatItExplains)
{
    OwnPart part{};
    part.files = [] {
        return std::vector{
            TableFile{"A.tbl", "t", {setting::flag("bOn", "chkOn", "On", true).explained("On.")}}};
    };
    part.lists = [] { return std::vector{listNamed("lvwOne", "One.")}; };
    part.explanations = {{"lvwOwn", "Own.", "B.tbl", "tOwn"}};
    EXPECT_EQ(toldOf(part), (std::vector<Lines>{{"chkOn", "On.", "A.tbl", "bOn"},
                                                {"lvwOne", "One.", "", ""},
                                                {"lvwOwn", "Own.", "B.tbl", "tOwn"}}));
}

TEST(Cards, TellOfAControlThatBelongsToNoSetting)
{
    const setting::Idle idle{setting::flag("bOn", "chkOn", "On", true)};
    EXPECT_EQ(linesOf(cardOf(idle)), Lines{"It belongs to no setting: nothing of it is read or saved."});
    EXPECT_EQ(controlOf(idle), "chkOn");
}

} // namespace
} // namespace quillfen
