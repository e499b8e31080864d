#include "functions/games/numbers.h"
#include "functions/games/shared/wordlist.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>

namespace quillfen {
namespace {

using test::golden;
using test::sameBytes;

class Numbers : public testing::Test
{
protected:
    std::vector<CellRow> questions() { return numbersQuestions().load(hub.files, hub.profiles); }
    void save(const std::vector<CellRow>& rows) { numbersQuestions().save(hub.files, hub.profiles, rows); }

    test::Hub hub{"Games", "Games/Numbers"};
    const std::string settings = "Games/Numbers/NumbersSettings.tbl";
    std::string& list = hub.file("Games/Numbers/NumbersQuestions.lst");
};

TEST_F(Numbers, AreDeclaredWithoutFault)
{
    EXPECT_EQ(numbersSettings().settings.size(), 20U);
}

TEST_F(Numbers, EachCalculatorBoxIsExplainedByItsKeyAndNotByItsCaption)
{
    std::map<std::string, std::string_view> sentences;
    for (const Setting& each : numbersSettings().settings) {
        if (const auto* field = std::get_if<setting::Field>(&each))
            sentences[field->label] = field->explanation;
    }
    EXPECT_TRUE(sentences["Prevent Calculator"].starts_with("Switches the report of the calculator"));
    EXPECT_TRUE(sentences["Report Calculator"].starts_with("Switches the prevention of the calculator"));
}

TEST_F(Numbers, CalculationsHaveAListOfTheirOwn)
{
    using Words = std::vector<std::string>;
    const RowListDeclaration& calculations = numbersCalculationList();
    EXPECT_EQ(
        (Words{calculations.list, calculations.toolbar, calculations.menu, calculations.dialog.editTitle}),
        (Words{"lvwNumbers", "tlbNumbers", "mnuNumbersNumbers", "Edit Question"}));
    EXPECT_EQ(calculations.toolTips, Words{"Edit question"});
    EXPECT_EQ(calculations.columns, (Words{"Type", "X Min", "X Max", "Y Min", "Y Max"}));
    EXPECT_EQ(calculations.dialog.labels, (Words{"X Minimum", "X Maximum", "Y Minimum", "Y Maximum"}));
    CellRow row = {{"+", "1", "2", "3", "4"}};
    EXPECT_EQ(calculations.fieldsOf(row), (Words{"1", "2", "3", "4"}));
    calculations.take({"5", "6", "7", "8"}, row);
    EXPECT_EQ(row.cells, (Words{"+", "5", "6", "7", "8"}));
    EXPECT_TRUE(calculations.asksAgain);
}

TEST_F(Numbers, AFreshBuildWritesTheSettingsInItsOwnOrderWithOneBlankEach)
{
    buildFunction(numbersFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(settings), golden("games/NumbersSettings.build.tbl")));
}

TEST_F(Numbers, AFreshBuildMakesTheScoreFilesAndOneQuestion)
{
    hub.store.files.clear();
    buildFunction(numbersFunction(), hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Games/Numbers/NumbersPlayers.tbl"), "tNumbersPlayers = {\r\n}\r\n");
    EXPECT_EQ(hub.file("Games/Numbers/NumbersScoresArchiveIndex.tbl"),
              "tNumbersScoresArchiveIndex = {\r\n}\r\n");
    EXPECT_EQ(hub.file("Games/Numbers/NumbersScores.tbl"), "tNumbersScores = {\r\n\tn=0\r\n}\r\n");
    EXPECT_EQ(hub.file("Games/Numbers/NumbersQuestions.lst"), "Mathematics: What is 2 Plus 2 = ??*4\r\n\r\n");
}

TEST_F(Numbers, ARebuildKeepsTheValuesTheCalculationsAndTheOtherFiles)
{
    hub.file(settings) = golden("games/NumbersSettings.save.tbl");
    list = "mine\r\n";
    const std::string scoreFiles[] = {"Games/Numbers/NumbersPlayers.tbl", "Games/Numbers/NumbersScores.tbl",
                                      "Games/Numbers/NumbersScoresArchiveIndex.tbl"};
    for (const auto& name : scoreFiles)
        hub.file(name) = "mine";
    buildFunction(numbersFunction(), hub.files, hub.profiles);
    for (const auto& name : scoreFiles)
        EXPECT_EQ(hub.file(name), "mine") << name;
    const auto before = test::luaValues(golden("games/NumbersSettings.save.tbl"));
    EXPECT_EQ(test::luaValues(hub.file(settings)), before);
    EXPECT_TRUE(hub.file(settings).starts_with("tNumbersSettings = {\r\n\tiTimeOut = 3,\r\n"));
    EXPECT_NE(hub.file(settings).find("\tiQuestions = 20,\r\n"), std::string::npos);
    EXPECT_EQ(list, "mine\r\n");
}

TEST_F(Numbers, ARebuildFillsInAMissingCalculation)
{
    hub.file(settings) =
        "tNumbersSettings = {\r\n\ttCalculation = {\r\n\t\tsDivision = \"2,4,2,4\",\r\n\t},\r\n}\r\n";
    buildFunction(numbersFunction(), hub.files, hub.profiles);
    const auto values = test::luaValues(hub.file(settings));
    EXPECT_EQ(values.at("tNumbersSettings.tCalculation.sDivision"), "2,4,2,4");
    EXPECT_EQ(values.at("tNumbersSettings.tCalculation.sMultiplication"), "0,20,0,100");
}

TEST_F(Numbers, TheHubScriptSeesFlagsNumbersAndCalculations)
{
    const auto values = test::luaValues(golden("games/NumbersSettings.build.tbl"));
    EXPECT_EQ(values.size(), 23U);
    EXPECT_EQ(values.at("tNumbersSettings.tCalculation.sAddition"), "0,10000,0,10000");
    EXPECT_EQ(values.at("tNumbersSettings.iAutoStartDelay"), "73");
    const auto saved = test::luaValues(golden("games/NumbersSettings.save.tbl"));
    EXPECT_EQ(saved.at("tNumbersSettings.iQuestions"), "20");
    EXPECT_EQ(saved.at("tNumbersSettings.bReportCalc"), "0");
}

TEST_F(Numbers, ASaveLosesTheLastAnswer)
{
    save({{{"A:one", "1"}}, {{"A:two", "2"}}, {{"A:three", "3"}}});
    EXPECT_EQ(list, "A:one*1\r\nA:two*2\r\nA:three\r\n");
    const auto again = questions();
    ASSERT_EQ(again.size(), 3U);
    EXPECT_EQ(again[1], (CellRow{{"A:two", "2"}}));
    EXPECT_EQ(again[2], (CellRow{{"A:three", ""}}));
}

TEST_F(Numbers, AListOfOneRowIsSavedWithoutAnAsterisk)
{
    save({{{"A:one", "1"}}});
    EXPECT_EQ(list, "A:one\r\n");
}

TEST_F(Numbers, AListOfNoRowIsSavedEmpty)
{
    EXPECT_EQ(composedWords(WordLine::Question, {}), "");
}

TEST_F(Numbers, ACalculationThatEndsInACommaHasAnEmptyNumberBehindIt)
{
    EXPECT_EQ(calculationRow("+", "1,2,3,").cells, (std::vector<std::string>{"+", "1", "2", "3", ""}));
    EXPECT_EQ(calculationRow("+", "1,2,3,4,5").cells, (std::vector<std::string>{"+", "1", "2", "3", "4"}));
}

TEST_F(Numbers, ACalculationIsRefusedForLettersInItsFirstNumberAlone)
{
    const RowListDeclaration& declared = numbersCalculationList();
    const CellRow before{{"+", "0", "1", "0", "1"}};
    const auto refused = declared.refusal({before}, {{"+", "x", "1", "0", "1"}}, &before);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->title, "Invalid Entry");
    EXPECT_EQ(refused->text, "Invalid Entry: Integers required in all fields");
    EXPECT_TRUE(declared.asksAgain);
    EXPECT_FALSE(declared.refusal({before}, {{"+", "1.5", "x", "y", "z"}}, &before));
}

TEST_F(Numbers, ACalculationIsFourNumbersJoinedByCommas)
{
    EXPECT_EQ(calculationRow("+", "1,2,3,4"), (CellRow{{"+", "1", "2", "3", "4"}}));
    EXPECT_EQ(calculationRow("+", "1,,3,4,5"), (CellRow{{"+", "1", "", "3", "4"}}));
    EXPECT_EQ(calculationRow("+", "1,2").cells.size(), 3U);
    EXPECT_EQ(calculationText({{"+", "1", "2", "3", "4"}}), "1,2,3,4");
}

TEST_F(Numbers, AnAnswerEndingInTIsLostToTheListReader)
{
    list = "A:one*eight\r\nA:two*nine\r\n";
    EXPECT_EQ(questions(), (std::vector<CellRow>{{{"A:two", "nine"}}}));
}

} // namespace
} // namespace quillfen
