#include "settings/lines.h"
#include "settings/tabletrim.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

std::string key(std::string text)
{
    TrimTableKey(text);
    return text;
}

std::string value(std::string text)
{
    TrimTableValue(text);
    return text;
}

TEST(TrimTableKey, StripsTabsQuotesCommasBlanksAndBrackets)
{
    EXPECT_EQ(key("\tsBorder "), "sBorder");
    EXPECT_EQ(key("[\"abc\"]"), "abc");
    EXPECT_EQ(key("\"abc\","), "abc");
    EXPECT_EQ(key("\t\t[-1]"), "-1");
    EXPECT_EQ(key("\t, \"[[abc]] \",\t"), "abc");
}

TEST(TrimTableKey, LosesAKeysOwnLeadingBracket)
{
    EXPECT_EQ(key("[\"[abc]\"]"), "abc");
    EXPECT_EQ(key("[\"[Bot]\"]"), "Bot");
    EXPECT_EQ(key("[\"[Bot]Name\"]"), "Bot]Name");
    EXPECT_EQ(key("[\"[OP]Name\"]"), "OP]Name");
}

TEST(TrimTableKey, TheBracketTripleCostsThreeInFrontAndOneAtTheEnd)
{
    EXPECT_EQ(key("[\"[abX"), "ab");
    EXPECT_EQ(key("[\"["), "");
    EXPECT_EQ(key("[\"[x"), "");
}

TEST(TrimTableKey, ACharacterOfTheFrontOnlyStaysBehindAndTheOtherWayRound)
{
    EXPECT_EQ(key("]abc["), "]abc[");
}

TEST(TrimTableKey, AnEmptyStringEndsBothLoops)
{
    EXPECT_EQ(key(""), "");
    EXPECT_EQ(key("\t\" ,[["), "");
    EXPECT_EQ(key("]]],"), "");
    EXPECT_EQ(key("\" ]]]"), "");
}

TEST(TrimTableValue, StripsTheSameButLeavesBrackets)
{
    EXPECT_EQ(value(" \"+\","), "+");
    EXPECT_EQ(value(" [5], "), "[5]");
    EXPECT_EQ(value("\t{ "), "{");
}

TEST(TrimTableValue, ABlankTextBecomesEmpty)
{
    EXPECT_EQ(value("\"  \""), "");
    EXPECT_EQ(value(""), "");
}

TEST(TrimTableValue, LosesABlankOrCommaThatTheTextEndsIn)
{
    EXPECT_EQ(value("\"hello, \","), "hello");
}

TEST(TrimTableValue, KeepsWhatStandsInside)
{
    EXPECT_EQ(value("\"a \"b\", c\","), "a \"b\", c");
}

TEST(LeadingNumber, IsWhatATextBeginsWith)
{
    EXPECT_EQ(leadingNumber(" 12 KB"), 12);
    EXPECT_EQ(leadingNumber("+1.5"), 1.5);
    EXPECT_EQ(leadingNumber("-3"), -3);
    EXPECT_EQ(leadingNumber("1.12589990684262E+15"), 1.12589990684262e15);
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("none"), 0);
    EXPECT_EQ(leadingNumber("inf"), 0);
    EXPECT_EQ(leadingNumber("1e999"), 0);
    EXPECT_EQ(leadingNumber(std::string_view("123").substr(0, 2)), 12) << "what follows in memory is no part";
}

TEST(WholeNumber, IsATextOfNothingElse)
{
    EXPECT_EQ(wholeNumber("+1"), 1);
    EXPECT_EQ(wholeNumber(" -2.5 "), -2.5);
    EXPECT_EQ(wholeNumber("0"), 0);
    EXPECT_EQ(wholeNumber(std::string_view("123").substr(0, 2)), 12);
    for (const char* text : {"", " ", "+", "1x", "x1", "1 2", "inf", "nan", "1e999"})
        EXPECT_EQ(wholeNumber(text), std::nullopt) << text;
}

} // namespace
} // namespace quillfen
