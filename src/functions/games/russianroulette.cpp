#include "functions/games/russianroulette.h"

#include "functions/games/shared/comments.h"
#include "functions/games/shared/playinmain.h"

namespace quillfen {
namespace {

/// The six chambers. A save quotes them, a rebuild writes them bare.
Setting chambers()
{
    return setting::ConstantRows{"tBang",
                                 {R"("Die")", R"("Live")", R"("Die")", R"("Die")", R"("Die")", R"("Die")"},
                                 {"Die", "Live", "Die", "Die", "Die", "Die"}};
}

// The boxes speak of winning and losing, as three card monty's do.
CommentList live()
{
    return {{R"(Games\RussianRoulette\RussianRouletteLive.tbl)", "tRussianRouletteLive"},
            "lvwLive",
            "tlbLive",
            "Live",
            "mnuFirst",
            "Win",
            "Each row is a comment on a player who survives."};
}

CommentList die()
{
    return {{R"(Games\RussianRoulette\RussianRouletteDie.tbl)", "tRussianRouletteDie"},
            "lvwDie",
            "tlbDie",
            "Die",
            "mnuSecond",
            "Lose",
            "Each row is a comment on a player who dies."};
}

} // namespace

const TableFile& russianRouletteSettings()
{
    static const TableFile file = {
        R"(Games\RussianRoulette\RussianRouletteSettings.tbl)",
        "tRussianRouletteSettings",
        {setting::flag("bInMain", "chkPlayInMain", "Play In Main", true).explained(playsInMainChat),
         chambers()},
    };
    return file;
}

const RowListDeclaration& russianRouletteLive()
{
    static const RowListDeclaration declared = commentList(live());
    return declared;
}

const RowListDeclaration& russianRouletteDie()
{
    static const RowListDeclaration declared = commentList(die());
    return declared;
}

FunctionDeclaration russianRouletteFunction()
{
    return {.nodes = {{"Games~RussianRoulette",
                       "Russian Roulette",
                       {{{"frmGamesRussianRoulette", "Games ~ RussianRoulette"},
                         {DeclaredSettings{russianRouletteSettings}, listPart(russianRouletteLive),
                          listPart(russianRouletteDie)}}}}},
            .folders = {R"(Games\RussianRoulette)"},
            .build = {RebuiltSettings{russianRouletteSettings},
                      firstRows(live().file, {{"You have survived... for now"}}),
                      firstRows(die().file, {{"You're dead, now whose gonna clean up this mess?"}})}};
}

} // namespace quillfen
