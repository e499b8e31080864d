#include "functions/games/numbers.h"

#include "functions/games/shared/questions.h"
#include "functions/games/shared/quizpattern.h"
#include "functions/games/shared/wordlist.h"
#include "settings/lines.h"

#include <algorithm>

namespace quillfen {
namespace {

constexpr const char* questionsPath = R"(Games\Numbers\NumbersQuestions.lst)";

/// How many numbers a calculation has.
constexpr std::size_t numberCount = 4;

constexpr std::string_view calculationsExplained =
    "Sets the ranges of the two numbers from which questions are made on the fly, for each type of "
    "calculation.";

constexpr QuizPattern numbersQuiz{QuizGame::Numbers};

Setting questionCount()
{
    auto count = numbersQuiz("iQuestions", "txtTextBoxUpDown(1)");
    count.keyInSave = "iQuestions "; // a save puts two blanks before the equals sign, a rebuild one
    return count;
}

Setting calculations()
{
    return setting::NamedTexts{"tCalculation",
                               "lvwNumbers",
                               "Calculations",
                               {{"sAddition", "0,10000,0,10000"},
                                {"sSubtraction", "0,10000,0,10000"},
                                {"sMultiplication", "0,20,0,100"},
                                {"sDivision", "1,10,1,50"}},
                               calculationsExplained};
}

/// Only the first field is looked at, and any number will do, "1.5" too.
std::optional<RowRefusal> calculationRefusal(const std::vector<CellRow>& /*rows*/, const CellRow& row,
                                             const CellRow* /*before*/)
{
    if (wholeNumber(row.cells.at(1)))
        return {};
    return RowRefusal{"Invalid Entry", "Invalid Entry: Integers required in all fields"};
}

} // namespace

const TableFile& numbersSettings()
{
    static const TableFile file = {
        R"(Games\Numbers\NumbersSettings.tbl)",
        "tNumbersSettings",
        withQuizFlags(
            "chkCheckBox",
            {
                setting::flag("bCalculateOnFly", "chkCheckBox(6)", "Calculate Questions On Fly", true),
                // Captions and keys cross over: each of the two boxes loads and saves the key of the other.
                setting::flag("bReportCalc", "chkCheckBox(7)", "Prevent Calculator", true)
                    .explained("Switches the report of the calculator in the hub: the captions of the two "
                               "calculator boxes have changed places."),
                setting::flag("bPreventCalc", "chkCheckBox(8)", "Report Calculator", true)
                    .explained("Switches the prevention of the calculator in the hub: the captions of the "
                               "two calculator boxes have changed places."),
                numbersQuiz("iArchiveScores", "txtTextBoxUpDown(9)"),
                calculations(),
                arrowNumber("iQuestionTime", "txtTextBoxUpDown(0)", "Question Time", 20, 0, 60),
                questionCount(),
                numbersQuiz("iQuestionsPause", "txtTextBoxUpDown(2)"),
                numbersQuiz("iTimeOut", "txtTextBoxUpDown(3)"),
                numbersQuiz("iBonusTime", "txtTextBoxUpDown(4)"),
                numbersQuiz("iPoints", "txtTextBoxUpDown(5)"),
                numbersQuiz("iScores", "txtTextBoxUpDown(6)"),
                numbersQuiz("iTopScores", "txtTextBoxUpDown(7)"),
                numbersQuiz("iAutoStartDelay", "txtTextBoxUpDown(8)"),
            }),
        {"iTimeOut",     "iBonusTime",  "iQuestions",       "iQuestionsPause", "iQuestionTime",
         "iTopScores",   "iScores",     "iPoints",          "iAutoStartDelay", "bManualStart",
         "bOpOnlyStart", "bOpOnlyStop", "bPreventCalc",     "bReportCalc",     "bCalculateOnFly",
         "tCalculation", "bPlayInMain", "bAutoClearScores", "bArchiveScores",  "iArchiveScores"},
    };
    return file;
}

const RowListDeclaration& numbersCalculationList()
{
    static const RowListDeclaration declared = [] {
        RowListDeclaration list;
        list.list = "lvwNumbers";
        list.toolbar = "tlbNumbers";
        list.toolTips = {"Edit question"};
        list.explanation = calculationsExplained;
        list.columns = {"Type", "X Min", "X Max", "Y Min", "Y Max"};
        list.menu = "mnuNumbersNumbers";
        list.dialog.form = EditForm::FourFields;
        list.dialog.editMode = 5; // a calculation of fewer than four numbers can't be loaded
        list.dialog.editTitle = "Edit Question";
        list.dialog.labels = {"X Minimum", "X Maximum", "Y Minimum", "Y Maximum"};
        list.fieldsOf = [](const CellRow& row) {
            return std::vector<std::string>(row.cells.begin() + 1, row.cells.end());
        };
        list.take = [](const std::vector<std::string>& fields, CellRow& row) {
            std::copy(fields.begin(), fields.end(), row.cells.begin() + 1);
        };
        list.refusal = calculationRefusal;
        list.asksAgain = true;
        return list;
    }();
    return declared;
}

CellRow calculationRow(const std::string& operatorSign, const std::string& text)
{
    CellRow row{{operatorSign}};
    for (std::size_t from = 0; from <= text.size() && row.cells.size() <= numberCount;) {
        const std::size_t comma = std::min(text.find(',', from), text.size());
        row.cells.push_back(text.substr(from, comma - from));
        from = comma + 1;
    }
    return row;
}

std::string calculationText(const CellRow& row)
{
    std::string text = row.cells.at(1);
    for (std::size_t cell = 2; cell <= numberCount; ++cell)
        text += "," + row.cells.at(cell);
    return text;
}

const RowListDeclaration& numbersQuestions()
{
    static const RowListDeclaration declared = [] {
        RowListDeclaration list = wordList("Question", questionsPath, WordLine::Question);
        list.explanation = "Each row is a fixed question with its category and its answer, besides the "
                           "questions that are calculated.";
        list.columns = {"Questions", "Answers"};
        list.menu = "mnuNumbers";
        list.dialog.form = EditForm::ThreeFields;
        list.dialog.labels = {"Category", "Question", "Answer"};
        list.fieldsOf = questionFields;
        list.take = [](const std::vector<std::string>& fields, CellRow& row) { row = questionRow(fields); };
        return list;
    }();
    return declared;
}

FunctionDeclaration numbersFunction()
{
    FunctionDeclaration function = quizFunction("Numbers", "Numbers", numbersSettings);
    function.nodes = {{"Games~Numbers",
                       "Numbers",
                       {{{"frmGamesNumbers", "Games ~ Numbers"},
                         {DeclaredSettings{numbersSettings, SettingsPartKind::Numbers},
                          listPart(numbersQuestions, ListPartKind::Words)}}}}};
    function.build.emplace_back(FirstText{questionsPath, "Mathematics: What is 2 Plus 2 = ??*4\r\n"});
    return function;
}

} // namespace quillfen
