#include "functions/games/russianrouletteform.h"

#include "functions/games/russianroulette.h"
#include "functions/games/shared/commentedgame.h"

namespace quillfen {

EditorForm* makeRussianRouletteForm(const FormContext& context)
{
    return makeCommentedGame({"frmGamesRussianRoulette", "Games ~ RussianRoulette"},
                             russianRouletteSettings(), russianRouletteLive(), russianRouletteDie(), context);
}

} // namespace quillfen
