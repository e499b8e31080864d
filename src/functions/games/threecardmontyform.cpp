#include "functions/games/threecardmontyform.h"

#include "functions/games/shared/commentedgame.h"
#include "functions/games/threecardmonty.h"

namespace quillfen {

EditorForm* makeThreeCardMontyForm(const FormContext& context)
{
    return makeCommentedGame({"frmGamesThreeCardMonty", "Games ~ Three Card Monty"}, threeCardMontySettings(),
                             threeCardMontyWin(), threeCardMontyLose(), context);
}

} // namespace quillfen
