#include "advice/filefindings.h"
#include "advice/settingfindings.h"
#include "declarations/declaration.h"
#include "functions/security/kicks.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillfen {
namespace {

using Lines = std::vector<std::string>;

/// Each finding as its line and the first words of what is told of it.
Lines shortly(const std::vector<Finding>& findings)
{
    Lines lines;
    for (const Finding& finding : findings) {
        const std::string& words = finding.words;
        const auto end = std::min(words.find(". ", 30), words.find(", ", 30));
        lines.push_back(std::to_string(finding.line) + ": " + words.substr(0, end));
    }
    return lines;
}

Lines found(const std::string& bytes, const char* file = R"(Security\A.tbl)")
{
    return shortly(fileFindings(file, bytes));
}

const char* const backslash = "the hub script sees this text without its backslash";
const char* const ends = "the text begins or ends with a blank";

Lines at(int line, const std::string& words)
{
    return {std::to_string(line) + ": " + words};
}

TEST(FileFindings, AreNoneInAFileThatIsWell)
{
    EXPECT_EQ(
        found("t = {\r\n\tsText = \"a, b\",\r\n\tiNumber = 5,\r\n\t[\"key\"] = \"\",\r\n\t\"row\",\r\n}\r\n"),
        Lines{});
    EXPECT_EQ(found(""), Lines{});
}

TEST(FileFindings, NameTheLineThatKeepsAFileFromLoading)
{
    EXPECT_EQ(found("t = {\r\n\tsText = \"a \"b\" c\",\r\n}\r\n"),
              at(2, "the file won't load: a quote inside the text ends it there"));
    EXPECT_EQ(found("t = {\r\n\tiNumber = ,\r\n}\r\n"), at(2, "the file won't load: there is no value"));
}

TEST(FileFindings, OfAFileThatIsKnownNotToLoadNameWhatElseKeepsItFromLoading)
{
    const char* const file = R"(Security\ProfileRules\ProfileRuleSettings.tbl)";
    EXPECT_EQ(found("t = {\r\n\tiCheckDelay = ,\r\n}\r\n", file), Lines{});
    EXPECT_EQ(found("t = {\r\n\tsText = \"a \"b\" c\",\r\n}\r\n", file),
              at(2, "the file won't load: a quote inside the text ends it there"));
}

TEST(FileFindings, TellOfTheFirstLineToo)
{
    EXPECT_EQ(found("t = {\"C:\\new\"}\r\n"), at(1, backslash));
}

TEST(FileFindings, DoNotSayThatAFileFailsWhichOnlyAProgramCouldTell)
{
    EXPECT_EQ(found("t = {\r\n\tsText = \"a\"..\"b\",\r\n}\r\n"),
              at(2, "the file may not load: a quote inside the text ends it there"));
}

TEST(FileFindings, TellWhatLua53AloneRefuses)
{
    EXPECT_EQ(found("t = {\r\n\tsText = \"C:\\games\",\r\n}\r\n"),
              at(2, "with Lua 5.3 the file won't load: a backslash stands before a character that it "
                    "doesn't go with"));
}

TEST(FileFindings, TellOfABackslashThatBothTake)
{
    EXPECT_EQ(found("t = {\r\n\tsText = \"C:\\new\",\r\n}\r\n"), at(2, backslash));
}

TEST(FileFindings, TellOfAWordWhereANumberShouldBe)
{
    EXPECT_EQ(found("t = {\r\n\tiNumber = abc,\r\n}\r\n"),
              at(2, "a word without quotes is nothing to the hub script"));
}

TEST(FileFindings, TellOfTextsWhoseEndsTheNextLoadTakesAway)
{
    for (const char* text : {" a", "a ", "\ta", "a,", ",a", " ", "a\t"}) {
        EXPECT_EQ(found("t = {\r\n\tsText = \"" + std::string(text) + "\",\r\n}\r\n"), at(2, ends)) << text;
        EXPECT_EQ(found("t = {\r\n\t\"" + std::string(text) + "\",\r\n}\r\n"), at(2, ends)) << text;
        EXPECT_EQ(found("t = {\r\n\t[\"k\"] = \"" + std::string(text) + "\",\r\n}\r\n"), at(2, ends)) << text;
    }
}

TEST(FileFindings, TellOfATextBehindWhichBlanksStand)
{
    EXPECT_EQ(found("t = {\r\n\tsText = \" a\", \t\r\n}\r\n"), at(2, ends));
    EXPECT_EQ(found("t = {\r\n\tsText = \" a\" \r\n}\r\n"), at(2, ends));
}

TEST(FileFindings, TellOfRowsWhoseBracketsTheNextLoadTakesAway)
{
    EXPECT_EQ(found("t = {\r\n\t\"[Chat]\",\r\n}\r\n"), at(2, "the text begins with [ or ends with ]"));
    EXPECT_EQ(found("t = {\r\n\tsText = \"[Chat]\",\r\n}\r\n"), Lines{}) << "a value keeps them";
}

TEST(FileFindings, TellOfRowsThatAreCutAtASecondEqualsSign)
{
    EXPECT_EQ(found("t = {\r\n\t[\"smile\"] = \"a = b\",\r\n}\r\n"),
              at(2, "the text holds a =, and the editor shows only what stands before it"));
    EXPECT_EQ(found("t = {\r\n\tsText = \"a = b\",\r\n}\r\n"), Lines{}) << "a setting is not cut";
    EXPECT_EQ(found("t = {\r\n\tsText = \"a = b\",\r\n}\r\n", R"(Language\Messages\Files\A.tbl)").size(), 1U);
}

TEST(FileFindings, TellOfAVersionThatIsCut)
{
    const char* const file = R"(Security\ClientChecker\ClientVersions.tbl)";
    EXPECT_EQ(found("t = {\r\n\t[\"c\"] = \"1^2.0\",\r\n}\r\n", file), Lines{});
    EXPECT_EQ(found("t = {\r\n\t[\"c\"] = \"1^2^0\",\r\n}\r\n", file),
              at(2, "the version holds a ^, and the editor shows only what stands before it"));
}

TEST(FileFindings, ComeInTheOrderOfTheLines)
{
    EXPECT_EQ(found("t = {\r\n\ta = \" a\",\r\n\tb = \"\\n\",\r\n\tc = \"c \",\r\n}\r\n"),
              (Lines{at(2, ends)[0], at(3, backslash)[0], at(4, ends)[0]}));
}

TEST(FileFindings, DoNotSayOfAFileThatNeverLoadsWhatLuaMakesOfIt)
{
    const std::string open = "tPortalSettings = {\r\n\tsNick = \"a\",\r\n";
    EXPECT_EQ(found(open, R"(Communication\Portal\PortalSettings.tbl)"), Lines{});
    EXPECT_EQ(found(open), at(1, "the file won't load: the table that opens here is never closed"));
    EXPECT_EQ(
        found("tPortalSettings = {\r\n\tsNick = \"a\"b\",\r\n", R"(Communication\Portal\PortalSettings.tbl)"),
        Lines{})
        << "the hub script reads it in a way of its own";
    EXPECT_EQ(
        found("tPortalSettings = {\r\n\tsNick = \" a\",\r\n", R"(Communication\Portal\PortalSettings.tbl)"),
        at(2, ends))
        << "but the editor reads it too";
}

TEST(FileFindings, TellOfAnswersThatTheEditorCutsOrDrops)
{
    const char* const file = R"(Games\Trivia\QuestionFiles\A.lst)";
    EXPECT_EQ(found("A:b?*c\r\nA:b?*cat\r\nA:b?*c*d\r\nword without an answer t\r\n", file),
              (Lines{"2: the editor doesn't show a line that ends in \"t\"",
                     "3: a second * ends the answer for the editor"}));
}

TEST(FileFindings, TellOfTextsThatAreTooLongForTheEditor)
{
    std::string text;
    for (int line = 0; line < 5000; ++line)
        text += "line\r\n";
    EXPECT_EQ(found(text, R"(Communication\MOTD\MOTDs\a.txt)"), Lines{});
    EXPECT_EQ(found(text + "one more", R"(Communication\MOTD\MOTDs\a.txt)"),
              at(5001, "the text has more than 5,000 lines"));
    EXPECT_EQ(found(text, R"(UserActions\Ascii\Ascii\a.asc)"), Lines{});
    EXPECT_EQ(found(text + "one more", R"(UserActions\Ascii\Ascii\a.asc)").size(), 1U);
}

/// The whole words, which a form shows as they stand.
std::string wordsOf(const std::string& bytes, const char* file = R"(Security\A.tbl)")
{
    const auto findings = fileFindings(file, bytes);
    return findings.empty() ? std::string() : findings.front().words;
}

TEST(FileFindings, SayWhatIsWrongAndWhatToDoAboutIt)
{
    EXPECT_EQ(wordsOf("t = {\r\n\tsText = \"a\\n\",\r\n}\r\n"),
              "the hub script sees this text without its backslash, or with another character in its place. "
              "Take the backslash out.");
    EXPECT_EQ(
        wordsOf("t = {\r\n\tiNumber = abc,\r\n}\r\n"),
        "a word without quotes is nothing to the hub script. Enter a number, or put the word in quotes.");
    EXPECT_EQ(wordsOf("t = {\r\n\tsText = \" a\",\r\n}\r\n"),
              "the text begins or ends with a blank, a tab, a comma or a quote, which the next load takes "
              "away. Take it out.");
    EXPECT_EQ(wordsOf("t = {\r\n\t\"[Chat]\",\r\n}\r\n"),
              "the text begins with [ or ends with ], which the next load takes away. Use other brackets.");
    EXPECT_EQ(wordsOf("t = {\r\n\t[\"smile\"] = \"a = b\",\r\n}\r\n"),
              "the text holds a =, and the editor shows only what stands before it. Take it out, or the next "
              "save does.");
    EXPECT_EQ(
        wordsOf("t = {\r\n\t[\"c\"] = \"1^2^0\",\r\n}\r\n", R"(Security\ClientChecker\ClientVersions.tbl)"),
        "the version holds a ^, and the editor shows only what stands before it. Take it out, or the "
        "next save does.");
    EXPECT_EQ(wordsOf("A:b?*c*d\r\n", R"(Games\Trivia\QuestionFiles\A.lst)"),
              "a second * ends the answer for the editor. Take it out, or the next save does.");
    EXPECT_EQ(
        wordsOf("A:b?*cat\r\n", R"(Games\Trivia\QuestionFiles\A.lst)"),
        "the editor doesn't show a line that ends in \"t\", and the next save drops it. Put a full stop "
        "behind it.");
}

TEST(FileFindings, SayWhatComesOfAFileThatIsNotThereOrIsOff)
{
    EXPECT_EQ(unreadableFile("A.tbl").words, "the file can't be read, and the editor shows zeros and empty "
                                             "texts for it. See to who may read it.");
    EXPECT_EQ(missingFile("A.tbl").words,
              "the file is missing, and the editor shows zeros and empty texts for "
              "it. Restore it and save its form.");
    EXPECT_EQ(switchedOff("Hangman").line, 0U) << "it is of the whole file";
    EXPECT_EQ(switchedOff("Hangman").words, "Hangman is switched off, so that the hub script does nothing of "
                                            "this. Tick it in General ~ Switches.");
}

TableFile fileOfEachKind()
{
    return {"A.tbl",
            "t",
            {setting::flag("bFlag", "chkCheckBox", "Flag", true),
             setting::number("iNumber", "txtUpDown(0)", "Number", 60, 1, 50),
             setting::number("iTime", "txtUpDown(1)", "Time", 2355, 5, 2359, {.clockTime = true}),
             setting::text("sText", "txtTextBox", "Text", "x", 3),
             setting::options("iOption", "optOption", "Option", 0, 0, {"A", "B"}),
             setting::letter("sAction", "cboComboBox", "Action", "Kick", {"Kick", "Ban"})}};
}

Lines foundInSample(const std::string& rows)
{
    return shortly(settingFindings(fileOfEachKind(), "t = {\r\n" + rows + "}\r\n"));
}

TEST(SettingFindings, AreNoneForValuesThatTheFormShows)
{
    EXPECT_EQ(foundInSample("bFlag = 0,\r\niNumber = 50,\r\niTime = 1259,\r\nsText = \"abc\",\r\niOption = "
                            "1,\r\nsAction = \"B\",\r\n"),
              Lines{});
    EXPECT_EQ(foundInSample(""), Lines{});
    EXPECT_EQ(foundInSample("iNumber = 60,\r\n"), Lines{}) << "a default may stand outside its range";
}

TEST(SettingFindings, NameTheLineOfANumberOutsideItsRange)
{
    EXPECT_EQ(foundInSample("bFlag = 1,\r\niNumber = 0,\r\n"),
              at(3, "0 is outside its range. Enter a number from 1 to 50."));
    EXPECT_EQ(foundInSample("iNumber = 51,\r\n"),
              at(2, "51 is outside its range. Enter a number from 1 to 50."));
    EXPECT_EQ(foundInSample("iOption = 2,\r\n"),
              at(2, "2 is outside its range. Enter a number from 0 to 1."));
}

TEST(SettingFindings, NameAClockTimeThatIsNone)
{
    EXPECT_EQ(foundInSample("iTime = 1260,\r\n"), at(2, "1260 is no time of day. Enter hours and minutes"));
    EXPECT_EQ(foundInSample("iTime = 2360,\r\n"),
              at(2, "2360 is outside its range. Enter a number from 5 to 2359."));
    EXPECT_EQ(shortly(settingFindings(kickSettings(), "tKickSettings = {\r\n\tiCleanerTime = 1260,\r\n}\r\n"))
                  .size(),
              1U);
}

TEST(SettingFindings, NameWhatNobodyCanChoose)
{
    EXPECT_EQ(foundInSample("sAction = \"X\",\r\n"), at(2, "\"X\" stands for none of the choices"));
    EXPECT_EQ(foundInSample("bFlag = 2,\r\n"), at(2, "2 is neither on nor off. Enter 1 or 0."));
    EXPECT_EQ(foundInSample("sText = \"abcd\",\r\n"),
              at(2, "the text is longer than the 3 characters that the form shows"));
}

TEST(SettingFindings, TellWhereTheReadersStop)
{
    std::string rows;
    for (int row = 0; row < 4998; ++row)
        rows += "x = 1,\r\n";
    EXPECT_EQ(foundInSample(rows), Lines{}) << "the brace stands on line 5,000";
    EXPECT_EQ(foundInSample(rows + "x = 1,\r\niNumber = 99,\r\n"),
              at(5001, "the editor reads no further than line 5,000"));
    const auto findings =
        settingFindings(fileOfEachKind(), "t = {\r\n" + rows + "x = 1,\r\niNumber = 99,\r\n}\r\n");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().words,
              "the editor reads no further than line 5,000, and its next save loses what "
              "stands below. Take lines out above.");
}

TEST(SettingFindings, SayWhatToDoAboutThem)
{
    const auto wordsOfRow = [](const std::string& row) {
        return settingFindings(fileOfEachKind(), "t = {\r\n" + row + ",\r\n}\r\n").at(0).words;
    };
    EXPECT_EQ(wordsOfRow("iTime = 1260"),
              "1260 is no time of day. Enter hours and minutes, such as 1300 for one o'clock.");
    EXPECT_EQ(wordsOfRow("sAction = \"X\""), "\"X\" stands for none of the choices. Choose one in the form.");
    EXPECT_EQ(wordsOfRow("sText = \"abcd\""),
              "the text is longer than the 3 characters that the form shows. Shorten it.");
}

const std::string& keyAt(const std::string& bytes, std::size_t line)
{
    static const std::string none = "none";
    const Setting* setting = settingAt(kickSettings(), bytes, line);
    return setting ? keyOf(*setting) : none;
}

TEST(SettingAt, IsTheOneWhoseRowALineIsOrFollows)
{
    const std::string bytes =
        "tKickSettings = {\r\n\tiKicksMakeBan = 5,\r\n\tiUnknown = 1,\r\n\tiTopKickers = 1,\r\n}";
    EXPECT_EQ(keyAt(bytes, 1), "none");
    EXPECT_EQ(keyAt(bytes, 2), "iKicksMakeBan");
    EXPECT_EQ(keyAt(bytes, 4), "iTopKickers");
    EXPECT_EQ(keyAt(bytes, 99), "iTopKickers");
}

TEST(UseFindings, NameNoListWithATickThoughTheFileBeginsWithIt)
{
    const TableFile file{
        "A.tbl", "t", {setting::profileFlags("tEnabledProfiles", "lvw", "Enabled Profiles")}};
    EXPECT_TRUE(useFindings(file, "tEnabledProfiles = {\r\n\t[0] = 1,\r\n\t[1] = 0,\r\n}\r\n").empty());
}

TEST(SettingAt, OfANestedTableIsTheOneOfThatTable)
{
    const auto inNest = [](const char* control, const char* nest) {
        setting::Field field = setting::flag("bTold", control, "Told", false);
        field.nest = nest;
        return field;
    };
    const TableFile file = {"A.tbl", "t", {inNest("chkOne", "tOne"), inNest("chkTwo", "tTwo")}};
    const auto controlAt = [&file](std::size_t line) {
        const Setting* setting = settingAt(file,
                                           "t = {\r\n\tbTold = 1,\r\n\ttTwo = {\r\n\t\tbTold = 1,\r\n\t},\r\n"
                                           "\ttOne = {\r\n\t\tbTold = 1,\r\n\t},\r\n}",
                                           line);
        return setting ? std::get<setting::Field>(*setting).control : "none";
    };
    EXPECT_EQ(controlAt(2), "none");
    EXPECT_EQ(controlAt(4), "chkTwo");
    EXPECT_EQ(controlAt(7), "chkOne");
}

TEST(UseFindings, NameAListOfProfilesOfWhomNoneIsTicked)
{
    const TableFile file{
        "A.tbl", "t", {setting::profileFlags("tEnabledProfiles", "lvw", "Enabled Profiles")}};
    const std::string none =
        "t = {\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n";
    ASSERT_EQ(useFindings(file, none).size(), 1U);
    EXPECT_EQ(useFindings(file, none).front().words,
              "no profile is ticked, so that nobody has any use of this "
              "function. Tick those that may use it.");
    EXPECT_EQ(useFindings(file, none).front().line, 2U);
    const std::string one =
        "t = {\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t},\r\n}\r\n";
    EXPECT_EQ(useFindings(file, one), std::vector<Finding>());
    EXPECT_EQ(useFindings(file, "t = {\r\n}\r\n"), std::vector<Finding>());
    EXPECT_EQ(useFindings(file, "t = {\r\n\ttEnabledProfiles = {\r\n\t},\r\n}\r\n"), std::vector<Finding>())
        << "a table without rows says nothing of anybody";
    EXPECT_EQ(useFindings(file, "tEnabledProfiles = {\r\n\t[-1] = 0,\r\n}\r\n").size(), 1U);
    const std::string behindAnother = "t = {\r\n\ttOther = {\r\n\t\t[-1] = 1,\r\n\t},\r\n\ttEnabledProfiles "
                                      "= {\r\n\t\t[-1] = 0,\r\n\t},\r\n}\r\n";
    ASSERT_EQ(useFindings(file, behindAnother).size(), 1U);
    EXPECT_EQ(useFindings(file, behindAnother).front().line, 5U);
}

TEST(UseFindings, AskForNoTicksThatExemptProfiles)
{
    const TableFile file{"A.tbl", "t", {setting::profileFlags("tEnabledProfiles", "lvw", "Exempt Profiles")}};
    EXPECT_EQ(useFindings(file, "t = {\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t},\r\n}\r\n"),
              std::vector<Finding>());
}

} // namespace
} // namespace quillfen
