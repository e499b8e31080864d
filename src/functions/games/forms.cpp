#include "functions/games/forms.h"

#include "functions/games/anagrams.h"
#include "functions/games/codebreaker.h"
#include "functions/games/guessthenumber.h"
#include "functions/games/hangman.h"
#include "functions/games/hangmanform.h"
#include "functions/games/numbersform.h"
#include "functions/games/russianroulette.h"
#include "functions/games/scoreclearers.h"
#include "functions/games/shared/wordlistpart.h"
#include "functions/games/slotmachine.h"
#include "functions/games/threecardmonty.h"
#include "functions/games/trivia.h"
#include "functions/games/triviaform.h"

namespace quillfen {
namespace {

/// This form alone asks with the program's name before it restores.
FormDescription anagrams()
{
    return {.name = "frmGamesAnagrams",
            .caption = "Games ~ Anagrams",
            .restoreTitle = "Restore Defaults?",
            .restoreText = "Restore Quillfen defaults?"};
}

} // namespace

FormCatalogue gamesForms()
{
    return {
        {anagrams(), {DeclaredSettings{anagramSettings}, listPartOf<WordListPart>(anagramWords)}},
        settingsForm({"frmGamesCodeBreaker", "Games ~ CodeBreaker"}, codeBreakerSettings),
        listForm({"frmGamesGlobalsScoreClearers", "Games ~ Score Clearers"}, scoreClearers),
        settingsForm({"frmGamesGuessTheNumber", "Games ~ GuessTheNumber"}, guessTheNumberSettings),
        {{"frmGamesHangman", "Games ~ Hangman"},
         {hangmanSettingsPart(), listPartOf<WordListPart>(hangmanWords), gallowsPart()}},
        {{"frmGamesNumbers", "Games ~ Numbers"}, {numbersSettingsPart(), numbersQuestionsPart()}},
        {{"frmGamesRussianRoulette", "Games ~ RussianRoulette"},
         {DeclaredSettings{russianRouletteSettings}, listPart(russianRouletteLive),
          listPart(russianRouletteDie)}},
        settingsForm({"frmGamesSlotMachine", "Games ~ SlotMachine"}, slotMachineSettings),
        {{"frmGamesThreeCardMonty", "Games ~ Three Card Monty"},
         {DeclaredSettings{threeCardMontySettings}, listPart(threeCardMontyWin),
          listPart(threeCardMontyLose)}},
        settingsForm({"frmGamesTrivia", "Games ~ Trivia ~ Settings"}, triviaSettings),
        {{.name = "frmGamesTriviaQuestions",
          .caption = "Games ~ Trivia ~ Questions",
          .minimumTwips = {12000, 7500},
          .hasRestore = false},
         {triviaQuestionsPart()}},
    };
}

} // namespace quillfen
