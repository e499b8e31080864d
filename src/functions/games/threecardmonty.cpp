#include "functions/games/threecardmonty.h"

#include "functions/games/shared/comments.h"
#include "functions/games/shared/playinmain.h"

namespace quillfen {
namespace {

/// The three cards. A save spells them with a small "of", a rebuild with a capital one.
Setting deal()
{
    return setting::ConstantRows{"tDeal",
                                 {R"("Ace of Spades")", R"("Queen of Hearts")", R"("Ace of Clubs")"},
                                 {R"("Ace Of Spades")", R"("Queen Of Hearts")", R"("Ace Of Clubs")"}};
}

CommentList win()
{
    return {{R"(Games\ThreeCardMonty\ThreeCardMontyWin.tbl)", "tThreeCardMontyWin"},
            "lvwWin",
            "tlbWin",
            "Win",
            "mnuFirst",
            "Win",
            "Each row is a comment on a player who wins."};
}

CommentList lose()
{
    return {{R"(Games\ThreeCardMonty\ThreeCardMontyLose.tbl)", "tThreeCardMontyLose"},
            "lvwLose",
            "tlbLose",
            "Lose",
            "mnuSecond",
            "Lose",
            "Each row is a comment on a player who loses."};
}

} // namespace

const TableFile& threeCardMontySettings()
{
    static const TableFile file = {
        R"(Games\ThreeCardMonty\ThreeCardMontySettings.tbl)",
        "tThreeCardMontySettings",
        {setting::flag("bPlayInMain", "chkPlayInMain", "Play In Main", true).explained(playsInMainChat),
         setting::number("iWager", "txtUpDown(0)", "Wager", 1, 1, 50),
         setting::number("iMarker", "txtUpDown(1)", "Marker", 25, 10, 500), deal()},
    };
    return file;
}

const RowListDeclaration& threeCardMontyWin()
{
    static const RowListDeclaration declared = commentList(win());
    return declared;
}

const RowListDeclaration& threeCardMontyLose()
{
    static const RowListDeclaration declared = commentList(lose());
    return declared;
}

FunctionDeclaration threeCardMontyFunction()
{
    return {.nodes = {{"Games~ThreeCardMonty",
                       "Three Card Monty",
                       {{{"frmGamesThreeCardMonty", "Games ~ Three Card Monty"},
                         {DeclaredSettings{threeCardMontySettings}, listPart(threeCardMontyWin),
                          listPart(threeCardMontyLose)}}}}},
            .folders = {R"(Games\ThreeCardMonty)"},
            .build = {RebuiltSettings{threeCardMontySettings},
                      firstRows(win().file, {{"The Gods smile upon you, this day"}}),
                      firstRows(lose().file, {{"You lost. Play again, what else have you got going?"}})}};
}

} // namespace quillfen
