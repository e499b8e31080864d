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

TEST(Cards, TellNothingAsNothing)
{
    EXPECT_EQ(
        linesOf(cardOf(setting::text("s", "c", "l", "", 24)), ""),
        (Lines{"Range: up to 24 characters. Default: nothing.", "In the file: nothing.", R"(s in A\B.tbl)"}));
}

} // namespace
} // namespace quillfen
