#include "functions/useractions/asciiform.h"

#include "functions/useractions/ascii.h"
#include "settings/filename.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/textedit.h"

namespace quillfen {
namespace {

/// The list of pictures. A row comes or changes only together with its picture, and goes with it.
class PicturesPart : public RowListPart
{
public:
    PicturesPart(const RowListDeclaration& pictures, const FormContext& context)
        : RowListPart(pictures, context),
          m_files(context.files)
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

    std::string refusal(const CellRow& row) const override
    {
        const std::string fault = leavingNameFault(row.cells.front());
        return fault.empty() ? RowListPart::refusal(row) : row.cells.front() + "\n\n" + fault;
    }

    bool mayDelete(const CellRow& row) override
    {
        return attempt(widget()->window(), deleting(fromBytes(row.cells.front())),
                       [&] { m_files.removeFile(pathOf(row)); });
    }

private:
    std::string pathOf(const CellRow& row) const { return m_files.realFile(asciiFile(row.cells.front())); }

    /// A picture that is there already may be listed under any name that stays in the folder.
    bool isGoodName(const CellRow& row) const
    {
        const bool isThere = leavingNameFault(row.cells.front()).empty() &&
                             m_files.store().exists(m_files.paths().resolve(pathOf(row)));
        return isThere || !refuseNewFile(list().window(), row.cells.front());
    }

    bool isDrawn(const CellRow& row) const { return editTextFile(list().window(), m_files, pathOf(row)); }

    const SettingsFiles& m_files;
};

} // namespace

DeclaredList asciiPicturesPart()
{
    return listPartOf<PicturesPart>(asciiPictures);
}

} // namespace quillfen
