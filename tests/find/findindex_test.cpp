#include "find/findindex.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillfen {
namespace {

using Lines = std::vector<std::string>;

/// An index of two functions.
class FindIndexTest : public testing::Test
{
protected:
    FindIndexTest()
    {
        const auto kicks = addFunction("Security~Kicks", "Security ~ Kicks");
        const auto file = add(kicks, FindKind::File, {}, R"(Security\Kick\KickSettings.tbl)");
        add(file, FindKind::Control, {{}, "txtUpDown(0)"}, "Ban Time", "911",
            {"iBanTime", "How long a ban lasts."});
        const auto profiles = add(file, FindKind::Control, {{}, "lvwProfiles"}, "Enabled Profiles");
        add(profiles, FindKind::Row, {{}, "lvwProfiles", 0}, {}, "Master: on");
        add(profiles, FindKind::Row, {{}, "lvwProfiles", 1}, {}, "Operator: off");
        const auto grid = add(kicks, FindKind::Control, {{}, "lvwPermissions"}, "Command");
        const auto row = add(grid, FindKind::Row, {{}, "lvwPermissions", 0}, "Ban", "Operator");
        add(row, FindKind::Cell, {{}, "lvwPermissions", 0}, {}, "Master: No");
        add(row, FindKind::Cell, {{}, "lvwPermissions", 1}, {}, "VIP: Yes");
        const auto games = addFunction("Games~Hangman", "Games ~ Hangman");
        add(games, FindKind::Control, {{}, "txtUpDown(1)"}, "Time Out", "60", {"iTimeOut"});
    }

    std::size_t addFunction(const char* key, const char* caption)
    {
        return index.add(FindIndex::top, {FindKind::Function, {key}, caption, {}, {}});
    }

    std::size_t add(std::size_t parent, FindKind kind, const FindPlace& place, std::string_view label,
                    std::string_view value = {}, const std::vector<std::string_view>& details = {})
    {
        return index.add(parent, {kind, place, label, value, details});
    }

    /// Each hit as it would be told.
    Lines found(const char* typed, std::size_t most = 100) const
    {
        Lines lines;
        for (const FindHit& hit : index.find(FindQuery(typed), most).hits) {
            std::string line = hit.function.text;
            for (const FindText* text : {&hit.setting, &hit.value, &hit.detail})
                line += text->text.empty() ? "" : " / " + text->text;
            lines.push_back(line);
        }
        return lines;
    }

    FindHit first(const char* typed) const { return index.find(FindQuery(typed), 1).hits.at(0); }

    FindIndex index;
};

TEST_F(FindIndexTest, AFunctionComesFirst)
{
    EXPECT_EQ(found("kick"),
              (Lines{"Security ~ Kicks", "Security ~ Kicks / Security\\Kick\\KickSettings.tbl"}));
}

TEST_F(FindIndexTest, TheFirstWordOfAllIsFound)
{
    EXPECT_EQ(found("security").front(), "Security ~ Kicks");
}

TEST_F(FindIndexTest, AFunctionComesBeforeTheSettingsOfThoseAboveIt)
{
    addFunction("Security~Bans", "Security ~ Bans");
    EXPECT_EQ(found("ban").front(), "Security ~ Bans");
}

TEST_F(FindIndexTest, WordsStandInAnyOrderAlsoInWhatAnEntryStandsBelow)
{
    EXPECT_EQ(found("time kick"), Lines{"Security ~ Kicks / Ban Time / 911"});
    EXPECT_EQ(found("OPERATOR enab"), Lines{"Security ~ Kicks / Enabled Profiles / Operator: off"});
}

TEST_F(FindIndexTest, AWordThatNothingHoldsFindsNothing)
{
    EXPECT_TRUE(found("time xyzzy").empty());
    EXPECT_TRUE(found("").empty());
}

TEST_F(FindIndexTest, WhatIsFoundInLabelsComesBeforeValuesAndThoseBeforeTheRest)
{
    add(0, FindKind::Control, {}, "Other", "x", {"sTag"});
    add(0, FindKind::Control, {}, "Text", "Tagged");
    add(0, FindKind::Control, {}, "Tags", "y");
    EXPECT_EQ(found("tag"), (Lines{"Security ~ Kicks / Tags / y", "Security ~ Kicks / Text / Tagged",
                                   "Security ~ Kicks / Other / x / sTag"}));
}

TEST_F(FindIndexTest, WhatBeginsAWordComesBeforeWhatStandsInside)
{
    add(0, FindKind::Control, {}, "Untimed", "x");
    add(0, FindKind::Control, {}, "Timed", "y");
    EXPECT_EQ(found("timed", 2), (Lines{"Security ~ Kicks / Timed / y", "Security ~ Kicks / Untimed / x"}));
}

TEST_F(FindIndexTest, WhatIsFoundButForALetterComesLast)
{
    add(0, FindKind::Control, {}, "Banns", "x");
    add(0, FindKind::Control, {}, "Bands", "y");
    EXPECT_EQ(found("bands"), (Lines{"Security ~ Kicks / Bands / y", "Security ~ Kicks / Banns / x"}));
    EXPECT_EQ(found("hagnman"), Lines{"Games ~ Hangman"});
}

TEST_F(FindIndexTest, WhatWasFoundBesidesIsTold)
{
    EXPECT_EQ(found("ibantime"), Lines{"Security ~ Kicks / Ban Time / 911 / iBanTime"});
    EXPECT_EQ(found("ban lasts"), Lines{"Security ~ Kicks / Ban Time / 911 / How long a ban lasts."});
    EXPECT_EQ(found("kicksettings 911"),
              Lines{"Security ~ Kicks / Ban Time / 911 / Security\\Kick\\KickSettings.tbl"});
}

TEST_F(FindIndexTest, ACellIsFoundTogetherWithItsRowAlone)
{
    EXPECT_EQ(found("vip ban"), Lines{"Security ~ Kicks / Ban: Operator / VIP: Yes"});
    EXPECT_TRUE(found("vip").empty());
    EXPECT_TRUE(found("vip kicks").empty());
}

TEST_F(FindIndexTest, AHitTellsWhereItStands)
{
    EXPECT_EQ(first("911").place, (FindPlace{"Security~Kicks", "txtUpDown(0)", -1}));
    EXPECT_EQ(first("operator profiles").place, (FindPlace{"Security~Kicks", "lvwProfiles", 1}));
    EXPECT_EQ(first("hangman").place, (FindPlace{"Games~Hangman", "", -1}));
    EXPECT_EQ(first("kicksettings.tbl").place, (FindPlace{"Security~Kicks", "", -1}));
}

TEST_F(FindIndexTest, AHitMarksTheWordsInAllOfItsTexts)
{
    const FindHit hit = first("time secu 91");
    EXPECT_EQ(hit.function.marks, (std::vector<FindMark>{{0, 4}}));
    EXPECT_EQ(hit.setting.marks, (std::vector<FindMark>{{4, 4}}));
    EXPECT_EQ(hit.value.marks, (std::vector<FindMark>{{0, 2}}));
}

TEST_F(FindIndexTest, TheFirstAreGivenAndAllAreCounted)
{
    const FindResult result = index.find(FindQuery("time"), 1);
    EXPECT_EQ(result.hits.size(), 1U);
    EXPECT_EQ(result.count, 2U);
}

TEST_F(FindIndexTest, MisspeltWordsAreLookedForWhereTooFewAreFoundAsTyped)
{
    add(0, FindKind::Control, {}, "Bands", "x");
    add(0, FindKind::Control, {}, "Banns", "y");
    EXPECT_EQ(index.find(FindQuery("bands"), 1).count, 1U);
    EXPECT_EQ(index.find(FindQuery("bands"), 2).count, 2U);
}

TEST_F(FindIndexTest, ALineEndInATextPartsNoFields)
{
    add(0, FindKind::Control, {{}, "txtOdd"}, "Odd", "one\ntwo\r");
    EXPECT_EQ(found("odd"), Lines{"Security ~ Kicks / Odd / one two "});
}

} // namespace
} // namespace quillfen
