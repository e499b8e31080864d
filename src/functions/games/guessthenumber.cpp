#include "functions/games/guessthenumber.h"

#include "functions/games/shared/quizpattern.h"

namespace quillfen {
namespace {

constexpr QuizPattern guessTheNumberQuiz{QuizGame::GuessTheNumber};

/// This game's captions of the two counts of scores go the other way round from the other games'.
setting::Field captioned(setting::Field field, const char* label)
{
    field.label = label;
    return field;
}

} // namespace

const TableFile& guessTheNumberSettings()
{
    static const TableFile file = {
        R"(Games\GuessTheNumber\GuessTheNumberSettings.tbl)",
        "tGuessTheNumberSettings",
        withQuizFlags(
            "chkCheckBox",
            {
                guessTheNumberQuiz("iArchiveScores", "txtTextBoxUpDown(9)"),
                guessTheNumberQuiz("iQuestions", "txtTextBoxUpDown(0)"),
                guessTheNumberQuiz("iQuestionsPause", "txtTextBoxUpDown(1)"),
                guessTheNumberQuiz("iTimeOut", "txtTextBoxUpDown(2)"),
                arrowNumber("iHints", "txtTextBoxUpDown(3)", "Hint Delay", 5, 0, 60),
                // The defaults of these two stand above what their arrows reach.
                arrowNumber("iHintTime", "txtTextBoxUpDown(4)", "Hints", 20, 0, 10),
                arrowNumber("iMaxHints", "txtTextBoxUpDown(5)", "Max User Hints", 20, 0, 10),
                arrowNumber("iQuestionMin", "txtTextBoxUpDown(6)", "Min Question Value", 1, 0, 100),
                arrowNumber("iQuestionMax", "txtTextBoxUpDown(7)", "Max Question Value", 500, 100, 5000),
                captioned(guessTheNumberQuiz("iScores", "txtTextBoxUpDown(8)"), "Scores"),
                captioned(guessTheNumberQuiz("iTopScores", "txtTextBoxUpDown(10)"), "End Of Game Scores"),
                guessTheNumberQuiz("iAutoStartDelay", "txtTextBoxUpDown(11)"),
            }),
    };
    return file;
}

FunctionDeclaration guessTheNumberFunction()
{
    FunctionDeclaration function = quizFunction("GuessTheNumber", "GuessTheNumber", guessTheNumberSettings);
    function.nodes = {
        {"Games~GuessTheNumber", "Guess The Number",
         settingsForm({"frmGamesGuessTheNumber", "Games ~ GuessTheNumber"}, guessTheNumberSettings)}};
    return function;
}

} // namespace quillfen
