#include "find/findquery.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using Marks = std::vector<FindMark>;
using Words = std::vector<std::string>;

Marks marksIn(const char* typed, const std::string& text)
{
    return FindQuery(typed).marksIn({text}).front();
}

bool isNear(const char* word, const char* text)
{
    return nearPlace(text, word).has_value();
}

TEST(FindQuery, BlanksPartWordsAndNoneIsNoQuery)
{
    EXPECT_EQ(FindQuery("  Kick  BAN ").words(), (Words{"kick", "ban"}));
    EXPECT_TRUE(FindQuery("   ").words().empty());
}

TEST(FindQuery, WordsBehindTheSixteenthDontCount)
{
    EXPECT_EQ(FindQuery("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18").words().size(), 16U);
}

TEST(FindQuery, CaseIsThatOfTheCodePagesLetters)
{
    EXPECT_EQ(marksIn("\xC4RGER", "viel \xE4rger"), (Marks{{5, 5}}));
    EXPECT_EQ(marksIn("\x8Avejk", "\x9AVEJK"), (Marks{{0, 5}}));
    EXPECT_TRUE(marksIn("\xD7", "\xF7").empty()) << "two signs, and no letters";
}

TEST(FindQuery, EachPlaceOfAWordIsMarked)
{
    EXPECT_EQ(marksIn("ban", "Ban who bans"), (Marks{{0, 3}, {8, 3}}));
    EXPECT_EQ(marksIn("[op]", "the tag [OP]"), (Marks{{8, 4}}));
}

TEST(FindQuery, MarksThatTouchAreOne)
{
    EXPECT_EQ(marksIn("kick ick tim time", "kicktime"), (Marks{{0, 8}}));
}

TEST(FindQuery, AMisspeltWordIsMarkedOnlyWhereNoTextHasItAsTyped)
{
    const FindQuery query("delay");
    EXPECT_EQ(query.marksIn({"the dalay", "none"})[0], (Marks{{4, 5}}));
    EXPECT_TRUE(query.marksIn({"the dalay", "the delay"})[0].empty());
}

TEST(NearPlace, OneLetterMayBeWrongMissingOddOrSwapped)
{
    for (const char* text : {"dalay", "dlay", "deelay", "dealy", "dela", "elday delya"})
        EXPECT_TRUE(isNear("delay", text)) << text;
    for (const char* text : {"dly", "dalai", "deeelay", "ledya", "de lay", "d"})
        EXPECT_FALSE(isNear("delay", text)) << text;
}

TEST(NearPlace, IsAsLongAsWhatStandsThere)
{
    EXPECT_EQ(nearPlace("kiks", "kicks"), (FindMark{0, 4}));
    EXPECT_EQ(nearPlace("kikc", "kick"), (FindMark{0, 4})) << "swapped, at the text's end";
    EXPECT_EQ(nearPlace("kixcks", "kicks"), (FindMark{0, 6}));
    EXPECT_EQ(nearPlace("abe", "abxe"), (FindMark{0, 3})) << "and nothing behind it is looked at";
}

TEST(NearPlace, IsNotInsideAWordOfDigitsAndLetters)
{
    EXPECT_EQ(nearPlace("1kikcs", "kicks"), std::nullopt);
    EXPECT_EQ(nearPlace("9kikcs", "kicks"), std::nullopt);
    EXPECT_EQ(nearPlace("-kikcs", "kicks"), (FindMark{1, 5}));
}

TEST(NearPlace, OfANumberIsNone)
{
    for (const char* number : {"0000", "9999", "0990"})
        EXPECT_EQ(nearPlace("00 99 000 999 099", number), std::nullopt) << number;
}

TEST(NearPlace, IsTheBeginningOfAWord)
{
    EXPECT_TRUE(isNear("kikc", "no kicking"));
    EXPECT_FALSE(isNear("kikc", "sidekick"));
    EXPECT_EQ(nearPlace("side (kicking)", "kikc"), (FindMark{6, 4}));
}

TEST(NearPlace, ShortWordsAndNumbersAreTakenByTheLetter)
{
    EXPECT_FALSE(isNear("ban", "bon"));
    EXPECT_FALSE(isNear("9111", "9112"));
    EXPECT_TRUE(isNear("warn", "worn"));
}

} // namespace
} // namespace quillfen
