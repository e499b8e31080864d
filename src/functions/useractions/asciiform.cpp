#include "functions/useractions/asciiform.h"

#include "functions/useractions/ascii.h"
#include "settings/tablefile.h"
#include "shell/kit/editorform.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/textedit.h"

namespace quillfen {
namespace {

/// The list of pictures. A row comes or changes only together with its picture, and goes with it.
class PicturesPart : public RowListPart
{
public:
    explicit PicturesPart(const FormContext& context)
        : RowListPart(asciiPictures(), context),
          m_files(context.files)
    {
    }

protected:
    bool mayTake(const CellRow& row) override
    {
        return !refuseFileName(widget()->window(), row.cells.front()) &&
               editTextFile(widget()->window(), m_files, asciiFile(row.cells.front()));
    }

    bool mayDelete(const CellRow& row) override
    {
        return !refuseFileName(widget()->window(), row.cells.front()) &&
               attempt(widget()->window(), [&] { m_files.removeFile(asciiFile(row.cells.front())); });
    }

private:
    const SettingsFiles& m_files;
};

} // namespace

EditorForm* makeAsciiForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmUserActionsAscii", "User Actions ~ Ascii", {9000, 7500}});
    form->add(new TableFilePart(asciiSettings(), context));
    form->add(new PicturesPart(context));
    return form;
}

} // namespace quillfen
