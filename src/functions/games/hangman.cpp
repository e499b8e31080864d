#include "functions/games/hangman.h"

#include "functions/games/shared/quizpattern.h"
#include "functions/games/shared/wordlist.h"

namespace quillfen {
namespace {

constexpr const char* hangmanWordsPath = R"(Games\Hangman\HangmanWords.lst)";

constexpr QuizPattern hangmanQuiz{QuizGame::Hangman};

/// A box that other games have is on this form too; the file has no such key.
Setting idleBonusTime()
{
    return setting::Idle{arrowNumber("iBonusTime", "txtTextBoxUpDown(4)", "Bonus Time", 10, 0, 1000)
                             .explained("Has no effect in this game: it is neither read nor saved.")};
}

} // namespace

const TableFile& hangmanSettings()
{
    static const TableFile file = {
        R"(Games\Hangman\HangmanSettings.tbl)",
        "tHangmanSettings",
        withQuizFlags("chkCheckBox",
                      {
                          setting::flag("bUseAscii", "chkCheckBox(6)", "Enable Ascii", true),
                          hangmanQuiz("iArchiveScores", "txtTextBoxUpDown(9)"),
                          oneCharacter("sHiddenChar", "Hint Character", hintBullet),
                          // A rebuild knows no default: the key stays empty until the form first saves.
                          setting::ConstantText{"sAllowedCharacters", "ABCDEFGHIJKLMNOPQRSTUVWXYZ-"},
                          arrowNumber("iLostLifeTime", "txtTextBoxUpDown(0)", "Lost Life Time", 30, 0, 60),
                          hangmanQuiz("iQuestions", "txtTextBoxUpDown(1)"),
                          hangmanQuiz("iQuestionsPause", "txtTextBoxUpDown(2)"),
                          hangmanQuiz("iTimeOut", "txtTextBoxUpDown(3)"),
                          idleBonusTime(),
                          hangmanQuiz("iPoints", "txtTextBoxUpDown(5)"),
                          hangmanQuiz("iScores", "txtTextBoxUpDown(6)"),
                          hangmanQuiz("iTopScores", "txtTextBoxUpDown(7)"),
                          hangmanQuiz("iAutoStartDelay", "txtTextBoxUpDown(8)"),
                      }),
    };
    return file;
}

const RowListDeclaration& hangmanWords()
{
    static const RowListDeclaration declared = guessedWords(hangmanWordsPath, "mnuHangman");
    return declared;
}

std::string gallowsFile(int stage)
{
    return R"(Games\Hangman\Ascii\)" + std::to_string(lastGallowsStage - stage) + ".asc";
}

FunctionDeclaration hangmanFunction()
{
    const OwnPart gallows = {
        .kind = OwnPartKind::Gallows,
        .explanations = {{"sldAscii", "Chooses the stage of the game whose picture is shown and edited."}},
        .texts =
            [](const SettingsFiles& /*files*/, const HubProfiles&) {
                std::vector<PlacedText> texts;
                for (int stage = 0; stage <= lastGallowsStage; ++stage)
                    texts.push_back({gallowsFile(stage), "sldAscii", -1, "Ascii", ""});
                return texts;
            },
        .paths = {R"(Games\Hangman\Ascii\)"}};
    FunctionDeclaration function = quizFunction("Hangman", "Hangman", hangmanSettings);
    function.nodes = {{"Games~Hangman",
                       "Hangman",
                       {{{"frmGamesHangman", "Games ~ Hangman"},
                         {DeclaredSettings{hangmanSettings, SettingsPartKind::Hangman},
                          listPart(hangmanWords, ListPartKind::Words), gallows}}}}};
    function.folders.emplace_back(R"(Games\Hangman\Ascii)");
    function.build.emplace_back(FirstText{hangmanWordsPath, firstWord});
    for (int stage = 0; stage <= lastGallowsStage; ++stage)
        function.build.emplace_back(FirstText{gallowsFile(stage), ""});
    return function;
}

} // namespace quillfen
