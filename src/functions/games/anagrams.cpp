#include "functions/games/anagrams.h"

#include "functions/games/shared/quizpattern.h"
#include "functions/games/shared/wordlist.h"

namespace quillfen {
namespace {

constexpr const char* anagramWordsPath = R"(Games\Anagrams\AnagramWords.lst)";

constexpr QuizPattern anagramQuiz{QuizGame::Anagrams};

} // namespace

const TableFile& anagramSettings()
{
    static const TableFile file = {
        R"(Games\Anagrams\AnagramSettings.tbl)", // of this game's names the folder's alone has an "s"
        "tAnagramSettings",
        withQuizFlags("chkCheckBox",
                      {
                          anagramQuiz("iArchiveScores", "txtTextBoxUpDown(9)"),
                          oneCharacter("sHintChar", "Hint Character", hintBullet),
                          arrowNumber("iHintTime", "txtTextBoxUpDown(0)", "Hint Time", 20, 0, 60),
                          anagramQuiz("iQuestions", "txtTextBoxUpDown(1)"),
                          anagramQuiz("iQuestionsPause", "txtTextBoxUpDown(2)"),
                          anagramQuiz("iTimeOut", "txtTextBoxUpDown(3)"),
                          anagramQuiz("iBonusTime", "txtTextBoxUpDown(4)"),
                          anagramQuiz("iPoints", "txtTextBoxUpDown(5)"),
                          anagramQuiz("iScores", "txtTextBoxUpDown(6)"),
                          anagramQuiz("iTopScores", "txtTextBoxUpDown(7)"),
                          anagramQuiz("iAutoStartDelay", "txtTextBoxUpDown(8)"),
                      }),
    };
    return file;
}

const RowListDeclaration& anagramWords()
{
    static const RowListDeclaration declared = guessedWords(anagramWordsPath, "mnuAnagrams");
    return declared;
}

FunctionDeclaration anagramsFunction()
{
    // This form alone asks with the program's name before it restores.
    const FormDescription form = {.name = "frmGamesAnagrams",
                                  .caption = "Games ~ Anagrams",
                                  .restoreTitle = "Restore Defaults?",
                                  .restoreText = "Restore Quillfen defaults?"};
    FunctionDeclaration function = quizFunction("Anagrams", "Anagram", anagramSettings);
    function.nodes = {
        {"Games~Anagrams",
         "Anagrams",
         {{form, {DeclaredSettings{anagramSettings}, listPart(anagramWords, ListPartKind::Words)}}}}};
    function.build.emplace_back(FirstText{anagramWordsPath, firstWord});
    return function;
}

} // namespace quillfen
