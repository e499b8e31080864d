#include "functions/games/scoreclearers.h"

#include "settings/codepage.h"

#include <algorithm>

namespace quillfen {
namespace {

ListFile clearers()
{
    return {R"(Games\Globals\ScoreClearers.tbl)", "tScoreClearers", ListFile::Form::Presence};
}

bool isClearer(const std::vector<CellRow>& rows, std::string_view nick)
{
    return std::any_of(rows.begin(), rows.end(), [wanted = codepage::lowered(nick)](const CellRow& row) {
        return codepage::lowered(row.cells.at(0)) == wanted;
    });
}

/// No user is added twice; an edited one isn't looked at.
std::optional<RowRefusal> refusal(const std::vector<CellRow>& rows, const CellRow& row, const CellRow* before)
{
    if (before || !isClearer(rows, row.cells.front()))
        return {};
    return RowRefusal{"Duplicate user", "Duplicate users are not permitted"};
}

} // namespace

const RowListDeclaration& scoreClearers()
{
    static const RowListDeclaration declared = [] {
        RowListDeclaration list = listOf("User", Fewest::None);
        list.list = "lvwUsers";
        list.toolbar = "tlbListview";
        list.explanation = "Each row is the nick of a user who may clear the scores of the games.";
        list.columns = {"Users"};
        list.menu = "mnuFirst";
        list.deletion.title = "Delete Exempt User?"; // that of the exempt users' lists
        list.refusal = refusal;
        list.load = loadOf(clearers());
        list.save = saveOf(clearers());
        return list;
    }();
    return declared;
}

FunctionDeclaration scoreClearersFunction()
{
    return {.nodes = {{"Games~ScoreClearers",
                       "Score Clearers",
                       {{{"frmGamesGlobalsScoreClearers", "Games ~ Score Clearers"},
                         {listPart(scoreClearers)}}}}},
            .folders = {R"(Games\Globals)"},
            .build = {emptyTable(clearers())}};
}

} // namespace quillfen
