#include "functions/games/forms.h"

#include "functions/games/anagramsform.h"
#include "functions/games/codebreaker.h"
#include "functions/games/guessthenumber.h"
#include "functions/games/hangmanform.h"
#include "functions/games/numbersform.h"
#include "functions/games/russianrouletteform.h"
#include "functions/games/scoreclearersform.h"
#include "functions/games/slotmachine.h"
#include "functions/games/threecardmontyform.h"
#include "functions/games/trivia.h"
#include "functions/games/triviaform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

FormCatalogue gamesForms()
{
    return {
        {"frmGamesAnagrams", makeAnagramsForm},
        settingsForm({"frmGamesCodeBreaker", "Games ~ CodeBreaker"}, codeBreakerSettings()),
        {"frmGamesGlobalsScoreClearers", makeScoreClearersForm},
        settingsForm({"frmGamesGuessTheNumber", "Games ~ GuessTheNumber"}, guessTheNumberSettings()),
        {"frmGamesHangman", makeHangmanForm},
        {"frmGamesNumbers", makeNumbersForm},
        {"frmGamesRussianRoulette", makeRussianRouletteForm},
        settingsForm({"frmGamesSlotMachine", "Games ~ SlotMachine"}, slotMachineSettings()),
        {"frmGamesThreeCardMonty", makeThreeCardMontyForm},
        settingsForm({"frmGamesTrivia", "Games ~ Trivia ~ Settings"}, triviaSettings()),
        {"frmGamesTriviaQuestions", makeTriviaQuestionsForm},
    };
}

} // namespace quillfen
