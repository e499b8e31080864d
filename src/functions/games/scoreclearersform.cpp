#include "functions/games/scoreclearersform.h"

#include "functions/games/scoreclearers.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/rowlistpart.h"

namespace quillfen {
namespace {

/// The users, of whom none is taken twice.
class ClearersPart : public RowListPart
{
public:
    explicit ClearersPart(const FormContext& context) : RowListPart(scoreClearers(), context) {}

protected:
    bool mayAdd(const CellRow& row) override
    {
        if (!isClearer(rows(), row.cells.front()))
            return true;
        notify(&list(), "Duplicate user", "Duplicate users are not permitted", QMessageBox::Warning);
        return false;
    }
};

} // namespace

EditorForm* makeScoreClearersForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmGamesGlobalsScoreClearers", "Games ~ Score Clearers"});
    form->add(new ClearersPart(context));
    return form;
}

} // namespace quillfen
