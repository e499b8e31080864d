#include "functions/games/anagrams.h"

#include "functions/games/shared/quizpattern.h"
#include "functions/games/shared/wordlist.h"

namespace quillfen {
namespace {

constexpr const char* wordsPath = R"(Games\Anagrams\AnagramWords.lst)";

setting::Field quiz(const std::string& key, const std::string& control)
{
    return quizSetting(QuizGame::Anagrams, key, control);
}

} // namespace

const TableFile& anagramSettings()
{
    static const TableFile file = {
        R"(Games\Anagrams\AnagramSettings.tbl)", // of this game's names the folder's alone has an "s"
        "tAnagramSettings",
        withQuizFlags("chkCheckBox",
                      {
                          quiz("iArchiveScores", "txtTextBoxUpDown(9)"),
                          oneCharacter("sHintChar", "Hint Character", hintBullet),
                          arrowNumber("iHintTime", "txtTextBoxUpDown(0)", "Hint Time", 20, 0, 60),
                          quiz("iQuestions", "txtTextBoxUpDown(1)"),
                          quiz("iQuestionsPause", "txtTextBoxUpDown(2)"),
                          quiz("iTimeOut", "txtTextBoxUpDown(3)"),
                          quiz("iBonusTime", "txtTextBoxUpDown(4)"),
                          quiz("iPoints", "txtTextBoxUpDown(5)"),
                          quiz("iScores", "txtTextBoxUpDown(6)"),
                          quiz("iTopScores", "txtTextBoxUpDown(7)"),
                          quiz("iAutoStartDelay", "txtTextBoxUpDown(8)"),
                      }),
    };
    return file;
}

const RowListDeclaration& anagramWords()
{
    static const RowListDeclaration declared = guessedWords(wordsPath, "mnuAnagrams");
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
    function.build.push_back(FirstText{wordsPath, firstWord});
    return function;
}

} // namespace quillfen
