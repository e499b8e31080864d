#include "lua/tablereader.h"
#include "support/realluas/refusal.h"

#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace quillfen {
namespace {

using lua::Fault;
using lua::Note;
using lua::Oddity;
using lua::Reading;
using lua::Verdict;
using lua::Version;

const char* name(Verdict verdict)
{
    return verdict == Verdict::Loads ? "loads" : verdict == Verdict::Fails ? "fails" : "unknown";
}

/// Reads with one version and holds the reader to what that version itself does.
Reading readAs(Version version, const std::string& text)
{
    const Reading reading = lua::readTables(text, version);
    const auto refusal = version == Version::Lua51 ? test::lua51Refusal(text) : test::lua53Refusal(text);
    if (reading.verdict != Verdict::Unknown) {
        EXPECT_EQ(reading.loads(), !refusal) << text << '\n' << refusal.value_or("loads");
    }
    return reading;
}

class LuaVersions : public testing::TestWithParam<Version>
{
protected:
    Reading read(const std::string& text) const { return readAs(GetParam(), text); }

    void loads(const std::string& text) const { EXPECT_STREQ(name(read(text).verdict), "loads") << text; }

    void fails(const std::string& text, Fault fault, std::size_t line = 1) const
    {
        const Reading reading = read(text);
        EXPECT_STREQ(name(reading.verdict), "fails") << text;
        EXPECT_EQ(lua::words(reading.fault), lua::words(fault)) << text;
        EXPECT_EQ(reading.line, line) << text;
    }

    void isUnknown(const std::string& text, Fault fault = Fault::Computes) const
    {
        const Reading reading = read(text);
        EXPECT_STREQ(name(reading.verdict), "unknown") << text;
        EXPECT_EQ(lua::words(reading.fault), lua::words(fault)) << text;
    }
};

INSTANTIATE_TEST_SUITE_P(Lua, LuaVersions, testing::Values(Version::Lua51, Version::Lua53),
                         [](const auto& each) { return each.param == Version::Lua51 ? "Of51" : "Of53"; });

TEST_P(LuaVersions, LoadWhatTheEditorWrites)
{
    loads("");
    loads("t = {\r\n\tbFlag = 1,\r\n\tsText = \"a, 'b' = {c}\",\r\n\ttProfiles = {\r\n\t\t[-1] = "
          "0,\r\n\t\t[0] = "
          "1,\r\n\t},\r\n}\r\n");
    loads("t = {\r\n\t\"one\",\r\n\t\"two\",\r\n}\r\n");
    loads("t = {\r\n\t[\"a key\"] = \"\",\r\n\t[\"[b]\"] = 1,\r\n}\r\nu = {\r\n}\r\n");
    loads("t = {\r\n}\r\nreturn t\r\n");
}

TEST_P(LuaVersions, LoadTablesThatAPersonWrote)
{
    loads("t={a=1;b=2,[3]={'x',\"y\",[[z]]}}");
    loads("-- tables\nt = {} --[[ of\nmine ]] u = nil; v = true w = false");
    loads("--[==[ ]] ]=] ]==] t = {[ [=[k]] ]=] ] = {}}");
    loads("# first line\nt = {}");
    loads("t = {1, 2.5, .5, 3., 1e5, 1E-5, 0x1F, 0XaB, - 4, - -4}");
    loads("t = {nil, [true] = nil, a = nil}");
    loads("t = {}, 1, 2");
    loads("return");
    loads("return;");
    loads("return {a = 1}, 2;");
    loads("t = \"\\a\\b\\f\\n\\r\\t\\v\\\\\\\"\\'\\065\\0\\255\"");
    loads("t = \"over\\\ntwo lines\\\r\nand three\"");
    loads("t\f=\v{}");
    loads("\t t = {\n\n\r\r\n}");
}

TEST_P(LuaVersions, LoadManyAssignmentsOfMoreValuesThanNames)
{
    std::string text;
    for (int line = 0; line < 300; ++line)
        text += "a = 1, 2\n";
    loads(text);
}

TEST_P(LuaVersions, RefuseAQuoteInAText)
{
    fails("t = {\r\n\tsText = \"a\"b\",\r\n}", Fault::QuoteInText, 2);
    fails("t = {\r\n\tsText = \"a\" b\",\r\n}", Fault::QuoteInText, 2);
    fails("t = {\r\n\tsText = \"a \"b\" c\",\r\n}", Fault::QuoteInText, 2);
    fails("t = {\r\n\tsText = \"\"a\"\",\r\n}", Fault::QuoteInText, 2);
    fails("t = {\r\n\tsText = \"a\"\",\r\n}", Fault::QuoteInText, 2);
    fails("t = {\r\n\tsText = \"\"\",\r\n}", Fault::QuoteInText, 2);
    fails("t = {\r\n\t\"a\"!\",\r\n}", Fault::QuoteInText, 2);
    fails("t = {\r\n\t[\"a\"b\"] = 1,\r\n}", Fault::QuoteInText, 2);
    isUnknown("t = {\r\n\tsText = \"a\" - \"b\",\r\n}", Fault::QuoteInText);
    isUnknown("t = {\r\n\tsText = \"a\"..\"b\",\r\n}", Fault::QuoteInText);
}

TEST_P(LuaVersions, RefuseATextThatEndsInABackslash)
{
    fails("t = {\r\n\tsText = \"a\\\",\r\n}", Fault::BackslashAtEnd, 2);
    fails("t = {\r\n\t[\"a\\\"] = 1,\r\n}", Fault::BackslashAtEnd, 2);
    loads("t = {\r\n\tsText = \"a\\\\\",\r\n}");
}

TEST_P(LuaVersions, RefuseATextWithoutAnEnd)
{
    fails("t = {\n\ts = \"a,\n}", Fault::OpenText, 2);
    fails("t = 'a", Fault::OpenText);
    fails("t = [[a", Fault::OpenLongText);
    fails("t = [==[a]]\n]=]", Fault::OpenLongText, 2);
    fails("t = {} --[[a", Fault::OpenComment);
    fails("t = [=a", Fault::Stray);
    for (const std::string sign : {"*", "/", "<", ">", "<=", ">=", "==", "~=", "..", "and", "%", "^"})
        fails("t = " + sign + " 1", Fault::Stray);
}

TEST_P(LuaVersions, RefuseANumberThatIsNone)
{
    for (const char* number :
         {"12a", "1.2.3", "1..2", "0x", "3e", "3e+", "0xFFp", "5_", ".5.", "1e5e", "1e~5", "0x1p~2"})
        EXPECT_EQ(read("t = {n = " + std::string(number) + "}").verdict, Verdict::Fails) << number;
    fails("t = {\n\ti = 12a,\n}", Fault::NotANumber, 2);
    fails("t = {\n\ti = 12 a,\n}", Fault::Stray, 2);
    fails("t = {\n\ti = 12:00,\n}", Fault::Stray, 2);
}

TEST_P(LuaVersions, RefuseAnEmptyValue)
{
    fails("t = {\r\n\tiNumber = ,\r\n}", Fault::NoValue, 2);
    fails("t = {\r\n\tiNumber = -,\r\n}", Fault::NoValue, 2);
    fails("t = {\r\n\tiNumber =\r\n}", Fault::NoValue, 2);
    fails("t = {\r\n\t[] = 1\r\n}", Fault::NoValue, 2);
    fails("t = {,}", Fault::NoValue);
    fails("t = {1,,2}", Fault::NoValue);
    fails("t = ", Fault::NoValue);
}

TEST_P(LuaVersions, RefuseBracesThatDontMatch)
{
    fails("t = {\r\n\ta = 1,\r\n", Fault::OpenTable);
    fails("t = {\r\n\tu = {\r\n\t\ta = 1", Fault::OpenTable, 2);
    fails("t = {\r\n}\r\n}\r\n", Fault::BraceWithoutTable, 3);
    fails("}", Fault::BraceWithoutTable);
    fails("t = {\r\n\t[-1] = 0,\r\n},\r\n}\r\n", Fault::BraceWithoutTable, 4);
    fails("return {}}", Fault::BraceWithoutTable);
    fails("t = {]}", Fault::NoValue);
    fails("t = {[1}", Fault::Stray);
    fails("t = {[1] 2}", Fault::Stray);
}

TEST_P(LuaVersions, RefuseRowsWithoutAComma)
{
    fails("t = {\r\n\ta = 1\r\n\tb = 2,\r\n}", Fault::NoComma, 2);
    fails("t = {\r\n\t\"a\"\r\n\t\"b\",\r\n}", Fault::NoComma, 2);
    fails("t = {\r\n\tu = {\r\n\t}\r\n\tb = 2,\r\n}", Fault::NoComma, 3);
}

TEST_P(LuaVersions, RefuseWhatDoesNotBelongThere)
{
    fails("t", Fault::Stray);
    fails("t u", Fault::Stray);
    fails("t =\n= 1", Fault::Stray, 2);
    fails("\"t\" = 1", Fault::Stray);
    fails("t = {\n\t\xBB,\n}", Fault::Stray, 2);
    fails("t = {end}", Fault::Stray);
    fails("t = {a = 1 2}", Fault::Stray);
    fails("t = {)}", Fault::Stray);
    fails("end", Fault::Stray);
    fails("return 1 t = 2", Fault::Stray);
    fails(std::string("t = {\0}", 7), Fault::Stray);
    loads(std::string("t = '\0' --\0", 12));
}

TEST_P(LuaVersions, RefuseNilForAKey)
{
    fails("t = {[nil] = 1}", Fault::NilKey);
}

TEST_P(LuaVersions, AreNotAskedWhatAProgramDoes)
{
    for (const char* program : {"f()",
                                "t = f()",
                                "t = {f()}",
                                "t = {f{}}",
                                "t = {f\"a\"}",
                                "t = {a.b}",
                                "t = {a:b()}",
                                "t.x = 1",
                                "t[1] = 2",
                                "a, b = 1, 2",
                                "t = 1 + 2",
                                "t = {1 + 2}",
                                "t = {1 - 2}",
                                "t = {a .. b}",
                                "t = #a",
                                "t = not a",
                                "t = (1)",
                                "t = -a",
                                "t = {[a] = 1}",
                                "t = ...",
                                "t = {1 < 2}",
                                "t = {a and b}",
                                "t = 1 == 2",
                                "local t = {}",
                                "if a then t = {} end",
                                "for i = 1, 2 do end",
                                "while a do end",
                                "repeat until a",
                                "do end",
                                "break",
                                "function f() end",
                                "t = function() end",
                                "(f)()"})
        isUnknown(program);
    isUnknown("\x1BLua");
    isUnknown("t = " + std::string(95, '{') + std::string(95, '}'), Fault::TooDeep);
    std::string manyValues;
    for (int row = 0; row < 300'000; ++row)
        manyValues += "1,";
    isUnknown("t = {" + manyValues + "}", Fault::TooLong);
}

TEST_P(LuaVersions, NoteWhatTheySeeOtherwiseThanItStandsThere)
{
    EXPECT_TRUE(read("t = {\n\ts = \"plain\",\n}\nreturn t").notes.empty());
    EXPECT_EQ(read("t = {\n\ts = \"C:\\\\new\",\n\tk = abc,\n\tabc,\n}").notes,
              (std::vector<Note>{{2, Oddity::Backslash}, {3, Oddity::BareWord}}));
    EXPECT_TRUE(read("u = 1 t = {Die, k = u}").notes.empty())
        << "a row without a key, and a word that was set";
}

TEST(LuaVersionsDiffer, InBackslashes)
{
    for (const char* escape : {"\\c", "\\ ", "\\.", "\\x", "\\xg1", "\\u", "\\u{", "\\u{}", "\\u{110000}",
                               "\\u{11ffff}", "\\[", "\\-"}) {
        const std::string text = "t = {\n\ts = \"" + std::string(escape) + "\"\n}";
        EXPECT_EQ(readAs(Version::Lua51, text).verdict, Verdict::Loads) << text;
        const Reading reading = readAs(Version::Lua53, text);
        EXPECT_EQ(reading.fault, Fault::UnknownEscape) << text;
        EXPECT_EQ(reading.line, 2U) << text;
    }
    for (const char* escape : {"\\x41", "\\u{41}", "\\u{10FFFF}", "\\u{0000000041}", "\\z a"}) {
        const std::string text = "t = \"" + std::string(escape) + "\"";
        EXPECT_EQ(readAs(Version::Lua51, text).verdict, Verdict::Loads) << text;
        EXPECT_EQ(readAs(Version::Lua53, text).verdict, Verdict::Loads) << text;
    }
    EXPECT_EQ(readAs(Version::Lua51, "t = \"\\z\n\"").verdict, Verdict::Fails);
    EXPECT_EQ(readAs(Version::Lua53, "t = \"\\z\r\n\n\t \"").verdict, Verdict::Loads);
    EXPECT_EQ(readAs(Version::Lua51, "t = \"\\256\"").fault, Fault::UnknownEscape);
    EXPECT_EQ(readAs(Version::Lua53, "t = \"\\256\"").fault, Fault::UnknownEscape);
}

TEST(LuaVersionsDiffer, InNumbersThatRunIntoAWord)
{
    EXPECT_EQ(readAs(Version::Lua51, "t = 1u = 2").fault, Fault::NotANumber);
    EXPECT_EQ(readAs(Version::Lua53, "t = 1u = 2").verdict, Verdict::Loads);
    EXPECT_EQ(readAs(Version::Lua51, "t = {0x1.8p-2}").verdict, Verdict::Fails);
    EXPECT_EQ(readAs(Version::Lua53, "t = {0x1.8p-2, 0x.8, 0xA.p1}").verdict, Verdict::Loads);
    EXPECT_EQ(readAs(Version::Lua51, "t = {0x1p4}").verdict, Verdict::Loads);
    EXPECT_EQ(readAs(Version::Lua53, "t = {0x1p4}").verdict, Verdict::Loads);
}

TEST(LuaVersionsDiffer, InAZeroByteBehindANumber)
{
    using namespace std::string_literals;
    EXPECT_EQ(readAs(Version::Lua51, "t = 9\0"s).verdict, Verdict::Unknown) << "5.1 passes over it";
    EXPECT_EQ(readAs(Version::Lua51, "t = 9 .\0 2"s).verdict, Verdict::Unknown) << "5.1 takes both for `..`";
    EXPECT_EQ(readAs(Version::Lua53, "t = 9\0"s).verdict, Verdict::Fails);
}

TEST(LuaVersionsDiffer, InSigns)
{
    for (const char* text :
         {"t = 7 // 2", "t = 1 << 2", "t = 1 >> 2", "t = 1 & 2", "t = 1 | 2", "t = ~1", "::a:: t = 1"}) {
        EXPECT_NE(readAs(Version::Lua51, text).verdict, Verdict::Loads) << text;
        EXPECT_EQ(readAs(Version::Lua53, text).verdict, Verdict::Unknown) << text;
    }
    EXPECT_EQ(readAs(Version::Lua51, "t = 1 & 2").verdict, Verdict::Fails);
    EXPECT_EQ(readAs(Version::Lua51, ";t = 1").verdict, Verdict::Fails);
    EXPECT_EQ(readAs(Version::Lua53, ";;t = 1;;").verdict, Verdict::Loads);
}

TEST(LuaVersionsDiffer, InWords)
{
    EXPECT_EQ(readAs(Version::Lua51, "goto = {goto = 1}").verdict, Verdict::Loads);
    EXPECT_EQ(readAs(Version::Lua53, "goto = 1").fault, Fault::Stray);
    EXPECT_EQ(readAs(Version::Lua53, "t = {goto = 1}").fault, Fault::Stray);
    EXPECT_EQ(readAs(Version::Lua51, "_ENV = 1 t = 2").verdict, Verdict::Loads);
    EXPECT_EQ(readAs(Version::Lua53, "_ENV = 1 t = 2").verdict, Verdict::Unknown);
}

TEST(LuaVersionsDiffer, InLongTexts)
{
    EXPECT_EQ(readAs(Version::Lua51, "t = [[a [[ b]]").fault, Fault::NestedLongText);
    EXPECT_EQ(readAs(Version::Lua51, "--[[a [[ b]]").fault, Fault::NestedLongText);
    EXPECT_EQ(readAs(Version::Lua51, "t = [=[a [[ b]=]").verdict, Verdict::Loads);
    EXPECT_EQ(readAs(Version::Lua53, "t = [[a [[ b]]").verdict, Verdict::Loads);
}

TEST(LuaVersionsDiffer, InTheMarkOfUtf8)
{
    EXPECT_EQ(readAs(Version::Lua51, "\xEF\xBB\xBFt = 1").fault, Fault::MarkedAsUtf8);
    EXPECT_EQ(readAs(Version::Lua53, "\xEF\xBB\xBFt = 1").verdict, Verdict::Loads);
}

/// Tables within each other, each with so many values in front of the inner one.
std::string nested(int levels, int values)
{
    std::string text = "t = ";
    for (int level = 0; level < levels; ++level) {
        text += '{';
        for (int value = 0; value < values; ++value)
            text += "1,";
    }
    return text + std::string(static_cast<std::size_t>(levels), '}');
}

TEST(LuaPlaces, AreTwoForATableAndRunOutBehindNinety)
{
    EXPECT_STREQ(name(readAs(Version::Lua51, nested(90, 0)).verdict), "loads");
    EXPECT_EQ(readAs(Version::Lua51, nested(91, 0)).fault, Fault::TooDeep);
}

TEST(LuaPlaces, AreTakenByUpToFiftyValuesOfATableThatWait)
{
    EXPECT_STREQ(name(readAs(Version::Lua51, nested(3, 50)).verdict), "loads");
    EXPECT_EQ(readAs(Version::Lua51, nested(4, 50)).fault, Fault::TooDeep);
    EXPECT_STREQ(name(readAs(Version::Lua51, nested(4, 51)).verdict), "loads");
    EXPECT_STREQ(name(readAs(Version::Lua51, nested(60, 1)).verdict), "loads");
    EXPECT_EQ(readAs(Version::Lua51, nested(61, 1)).fault, Fault::TooDeep);
}

std::string repeated(const std::string& text, int times)
{
    std::string all;
    for (int time = 0; time < times; ++time)
        all += text;
    return all;
}

TEST(LuaPlaces, AreOneForEachFurtherValueOfAnAssignmentAndFreeBehindIt)
{
    const std::string most = "t = 1" + repeated(",1", 180) + "\n";
    EXPECT_STREQ(name(readAs(Version::Lua51, most + most).verdict), "loads");
    EXPECT_EQ(readAs(Version::Lua51, "t = 1" + repeated(",1", 181)).fault, Fault::TooDeep);
}

TEST(LuaPlaces, AreTwoForAMinusAndFreeBehindIt)
{
    EXPECT_STREQ(name(readAs(Version::Lua51, "t = " + repeated("- ", 90) + "1").verdict), "loads");
    EXPECT_EQ(readAs(Version::Lua51, "t = " + repeated("- ", 91) + "1").fault, Fault::TooDeep);
    EXPECT_STREQ(name(readAs(Version::Lua51, "t = {" + repeated("[-1] = -1,", 100) + "}").verdict), "loads");
}

TEST(LuaPlaces, OfATableAreFreeBehindIt)
{
    EXPECT_STREQ(name(readAs(Version::Lua51, "t = {" + repeated("a = {},", 100) + "}").verdict), "loads");
}

TEST(LuaValues, AreCountedWithTheNamesInFrontOfThemAndEndAtAQuarterOfAMillion)
{
    EXPECT_STREQ(name(readAs(Version::Lua51, "t = {" + repeated("1,", 249'999) + "}").verdict), "loads");
    EXPECT_EQ(readAs(Version::Lua51, "t = {" + repeated("1,", 250'000) + "}").fault, Fault::TooLong);
    EXPECT_STREQ(name(readAs(Version::Lua51, "t = {" + repeated("a=1,", 124'999) + "}").verdict), "loads");
    EXPECT_EQ(readAs(Version::Lua51, "t = {" + repeated("a=1,", 125'000) + "}").fault, Fault::TooLong);
}

TEST(LuaPlaces, AreTakenByNoValueThatHasItsKey)
{
    const auto tables = [](const std::string& row, int levels) {
        return readAs(Version::Lua51, "t = " + repeated("{" + row + ",", levels) +
                                          std::string(static_cast<std::size_t>(levels), '}'));
    };
    for (const char* row : {"a = 1", "[1] = 1"}) {
        EXPECT_STREQ(name(tables(row, 90).verdict), "loads") << row;
        EXPECT_EQ(tables(row, 91).fault, Fault::TooDeep) << row;
    }
    EXPECT_STREQ(name(tables("word", 60).verdict), "loads");
    EXPECT_EQ(tables("word", 61).fault, Fault::TooDeep);
}

TEST(LuaPlaces, AreTakenByTheFirstValueBehindFiftyAgain)
{
    EXPECT_STREQ(name(readAs(Version::Lua51, nested(43, 51)).verdict), "loads");
    EXPECT_EQ(readAs(Version::Lua51, nested(44, 51)).fault, Fault::TooDeep);
}

TEST(LuaWords, AreMadeOfAllLettersDigitsAndTheLowLine)
{
    EXPECT_STREQ(name(readAs(Version::Lua51, "a = 1 z = 1 A = 1 Z = 1 _ = 1 b0 = 1 b9 = 1").verdict),
                 "loads");
    EXPECT_STREQ(name(readAs(Version::Lua51, "t = {0xa, 0xf, 0xA, 0xF, 0x0, 0x9}").verdict), "loads");
    EXPECT_EQ(readAs(Version::Lua51, "t = 0xg").fault, Fault::NotANumber);
}

TEST(LuaTexts, MayHaveADigitBehindAnEscapeOfThreeAndNothingAtAllBetweenLongBrackets)
{
    EXPECT_STREQ(name(readAs(Version::Lua51, "t = \"\\2551\"").verdict), "loads");
    EXPECT_STREQ(name(readAs(Version::Lua51, "t = [[]] u = [==[]==]").verdict), "loads");
}

TEST(LuaFiles, OfALineInFrontAloneHoldNothing)
{
    EXPECT_STREQ(name(readAs(Version::Lua51, "#!lua}").verdict), "loads");
}

TEST(LuaFiles, HaveALineInFrontThatIsCountedAndNotRead)
{
    EXPECT_EQ(readAs(Version::Lua51, "#!lua {\nt = nil nil").line, 2U);
}

TEST(LuaFaults, AreToldEachAndWithWhatToDo)
{
    const std::regex shape("[a-z][a-z '.8UTF-]+\\. [A-Z][a-z ,']+\\.");
    std::set<std::string> told;
    for (int fault = 1; fault <= static_cast<int>(Fault::TooLong); ++fault) {
        const std::string words(lua::words(static_cast<Fault>(fault)));
        EXPECT_TRUE(std::regex_match(words, shape)) << words;
        EXPECT_TRUE(told.insert(words).second) << words;
    }
    EXPECT_EQ(lua::words(Fault::None), "");
}

} // namespace
} // namespace quillfen
