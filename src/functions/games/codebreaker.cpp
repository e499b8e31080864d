#include "functions/games/codebreaker.h"

#include "functions/games/shared/quizpattern.h"

namespace quillfen {
namespace {

constexpr const char* allDigits = "0123456789";

constexpr QuizPattern codeBreakerQuiz{QuizGame::CodeBreaker};

} // namespace

const TableFile& codeBreakerSettings()
{
    static const TableFile file = {
        R"(Games\CodeBreaker\CodeBreakerSettings.tbl)",
        "tCodeBreakerSettings",
        withQuizFlags(
            "chkCheckBox",
            {
                codeBreakerQuiz("iArchiveScores", "txtTextBoxUpDown(9)"),
                setting::text("sAllowedCharacters", "txtAllowedCharacters", "Allowed Characters", allDigits),
                // The bullet is the default of a hint character, which this game doesn't have: its hidden one
                // is empty until its owner types it.
                oneCharacter("sHiddenChar", "Hidden Character", ""),
                arrowNumber("iQuestionLength", "txtTextBoxUpDown(0)", "Question Length", 3, 0, 60),
                codeBreakerQuiz("iQuestions", "txtTextBoxUpDown(1)"),
                codeBreakerQuiz("iQuestionsPause", "txtTextBoxUpDown(2)"),
                codeBreakerQuiz("iTimeOut", "txtTextBoxUpDown(3)"),
                arrowNumber("iQuestionsTime", "txtTextBoxUpDown(4)", "Question Time", 90, 0, 1000),
                codeBreakerQuiz("iPoints", "txtTextBoxUpDown(5)"),
                codeBreakerQuiz("iScores", "txtTextBoxUpDown(6)"),
                codeBreakerQuiz("iTopScores", "txtTextBoxUpDown(7)"),
                codeBreakerQuiz("iAutoStartDelay", "txtTextBoxUpDown(8)"),
            }),
    };
    return file;
}

FunctionDeclaration codeBreakerFunction()
{
    FunctionDeclaration function = quizFunction("CodeBreaker", "CodeBreaker", codeBreakerSettings);
    function.nodes = {{"Games~CodeBreaker", "CodeBreaker",
                       settingsForm({"frmGamesCodeBreaker", "Games ~ CodeBreaker"}, codeBreakerSettings)}};
    return function;
}

} // namespace quillfen
