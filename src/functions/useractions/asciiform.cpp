#include "functions/useractions/asciiform.h"

#include "functions/useractions/ascii.h"
#include "settings/filename.h"
#include "settings/tablefile.h"
#include "shell/kit/folderfilespart.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/textedit.h"

namespace quillfen {
namespace {

/// The list of pictures. A row comes or changes only together with its picture, and goes with it.
class PicturesPart : public RowFilesPart
{
public:
    PicturesPart(const RowListDeclaration& pictures, const FormContext& context)
        : RowFilesPart(pictures, std::string(asciiFolder), context)
    {
    }

protected:
    bool mayAdd(const CellRow& row) override { return isGoodName(row) && isDrawn(row); }

    bool mayTake(const CellRow& row) override
    {
        const CellRow& before = rows()[static_cast<std::size_t>(list().currentRow())];
        const bool isGood = row.cells.front() == before.cells.front()
                                ? !refuseListedFile(widget()->window(), "Cannot open file", row.cells.front())
                                : isGoodName(row);
        return isGood && isDrawn(row);
    }

private:
    /// A picture that is there already may be listed under any name that stays in the folder.
    bool isGoodName(const CellRow& row) const
    {
        const SettingsFiles& files = context().files;
        const bool isThere = leavingNameFault(row.cells.front()).empty() &&
                             files.store().exists(files.paths().resolve(pathOf(row)));
        return isThere || !refuseNewFile(list().window(), row.cells.front());
    }

    bool isDrawn(const CellRow& row) const
    {
        return editTextFile(list().window(), context().files, pathOf(row));
    }
};

} // namespace

std::unique_ptr<FormPart> makeAsciiPicturesPart(const RowListDeclaration& list, const FormContext& context)
{
    return std::make_unique<PicturesPart>(list, context);
}

} // namespace quillfen
