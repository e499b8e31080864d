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
    using RowListPart::RowListPart;

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

std::unique_ptr<FormPart> makeScoreClearersPart(const RowListDeclaration& list, const FormContext& context)
{
    return std::make_unique<ClearersPart>(list, context);
}

} // namespace quillfen
