#include "functions/games/scoreclearers.h"

#include "settings/codepage.h"

#include <algorithm>

namespace quillfen {
namespace {

const ListFile clearers = {R"(Games\Globals\ScoreClearers.tbl)", "tScoreClearers", ListFile::Form::Presence};

} // namespace

const RowListDeclaration& scoreClearers()
{
    static const RowListDeclaration declared = [] {
        RowListDeclaration list;
        list.list = "lvwUsers";
        list.toolbar = "tlbListview";
        list.columns = {"Users"};
        list.menu = "mnuFirst";
        list.dialog.addTitle = "Add User";
        list.dialog.editTitle = "Edit User";
        list.dialog.labels = {"User"};
        // The title is that of the exempt users' lists.
        list.deletion = {"Delete Exempt User?", "Do you really want to delete this User?", ""};
        list.load = loadOf(clearers);
        list.save = saveOf(clearers);
        return list;
    }();
    return declared;
}

bool isClearer(const std::vector<CellRow>& rows, std::string_view nick)
{
    return std::any_of(rows.begin(), rows.end(), [wanted = codepage::lowered(nick)](const CellRow& row) {
        return codepage::lowered(row.cells.at(0)) == wanted;
    });
}

FunctionDeclaration scoreClearersFunction()
{
    return {.nodes = {{"Games~ScoreClearers",
                       "Score Clearers",
                       {{{"frmGamesGlobalsScoreClearers", "Games ~ Score Clearers"},
                         {listPart(scoreClearers, ListPartKind::ScoreClearers)}}}}},
            .folders = {R"(Games\Globals)"},
            .build = {emptyTable(clearers)}};
}

} // namespace quillfen
