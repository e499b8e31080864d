#include "functions/games/forms.h"

#include "functions/games/anagrams.h"
#include "functions/games/codebreaker.h"
#include "functions/games/guessthenumber.h"
#include "functions/games/hangmanform.h"
#include "functions/games/numbersform.h"
#include "functions/games/russianroulette.h"
#include "functions/games/scoreclearersform.h"
#include "functions/games/shared/wordlistpart.h"
#include "functions/games/slotmachine.h"
#include "functions/games/threecardmonty.h"
#include "functions/games/trivia.h"
#include "functions/games/triviaform.h"
#include "shell/kit/declaredforms.h"
#include "shell/kit/tablefilepart.h"

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

FormParts anagramParts(const FormContext& context)
{
    return {new TableFilePart(anagramSettings(), context), new WordListPart(anagramWords(), context)};
}

FormParts russianRouletteParts(const FormContext& context)
{
    return {new TableFilePart(russianRouletteSettings(), context),
            new RowListPart(russianRouletteLive(), context), new RowListPart(russianRouletteDie(), context)};
}

FormParts threeCardMontyParts(const FormContext& context)
{
    return {new TableFilePart(threeCardMontySettings(), context),
            new RowListPart(threeCardMontyWin(), context), new RowListPart(threeCardMontyLose(), context)};
}

} // namespace

FormCatalogue gamesForms()
{
    return {
        formOf(anagrams(), anagramParts),
        settingsForm({"frmGamesCodeBreaker", "Games ~ CodeBreaker"}, codeBreakerSettings),
        {"frmGamesGlobalsScoreClearers", makeScoreClearersForm},
        settingsForm({"frmGamesGuessTheNumber", "Games ~ GuessTheNumber"}, guessTheNumberSettings),
        {"frmGamesHangman", makeHangmanForm},
        {"frmGamesNumbers", makeNumbersForm},
        formOf({"frmGamesRussianRoulette", "Games ~ RussianRoulette"}, russianRouletteParts),
        settingsForm({"frmGamesSlotMachine", "Games ~ SlotMachine"}, slotMachineSettings),
        formOf({"frmGamesThreeCardMonty", "Games ~ Three Card Monty"}, threeCardMontyParts),
        settingsForm({"frmGamesTrivia", "Games ~ Trivia ~ Settings"}, triviaSettings),
        {"frmGamesTriviaQuestions", makeTriviaQuestionsForm},
    };
}

} // namespace quillfen
