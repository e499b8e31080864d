#include "shell/kit/folderfilespart.h"

#include "settings/codepage.h"
#include "settings/tablefile.h"
#include "settings/textfolder.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/textedit.h"

#include <QInputDialog>

#include <algorithm>

namespace quillfen {

FolderFilesPart::FolderFilesPart(const RowListDeclaration& declaration, std::string folder,
                                 const FormContext& context)
    : RowListPart(declaration, context),
      m_folder(std::move(folder))
{
}

bool FolderFilesPart::isGoodName(const QString& typed)
{
    const std::string name = toBytes(typed);
    if (fromBytes(name) != typed) {
        notify(widget(), "Cannot create file", typed + " has characters that the hub script can't read",
               QMessageBox::Warning);
        return false;
    }
    if (refuseFileName(widget(), name))
        return false;
    // Only the typed name is lowered: it is refused for a row "hello", and not for a row "Hello".
    if (std::any_of(rows().begin(), rows().end(),
                    [&](const CellRow& row) { return row.cells[0] == codepage::lowered(name); })) {
        notify(widget(), "Error", "File already exists", QMessageBox::Warning);
        return false;
    }
    return true;
}

std::string FolderFilesPart::askName()
{
    const RowDialog& words = declaration().dialog;
    for (;;) {
        const QString typed =
            QInputDialog::getText(widget(), fromBytes(words.addTitle), fromBytes(words.labels.front()));
        if (typed.isEmpty())
            return {};
        if (isGoodName(typed))
            return toBytes(typed);
    }
}

void FolderFilesPart::add()
{
    const std::string name = askName();
    if (name.empty() || !editTextFile(widget()->window(), context().files, textFile(m_folder, name),
                                      TextEditDialog::Mode::New))
        return;
    list().append({{name}});
    list().select(static_cast<int>(rows().size()) - 1);
    if (!declaration().ticks) // a row without its tick is not saved, so that it changes nothing
        emit changed();
}

void FolderFilesPart::edit()
{
    const int row = list().currentRow();
    if (row < 0)
        return;
    const std::string& name = rows()[static_cast<std::size_t>(row)].cells[0];
    // A table written by hand can hold a name that leads out of the folder.
    if (!refuseFileName(widget(), name))
        editTextFile(widget()->window(), context().files, textFile(m_folder, name));
}

bool FolderFilesPart::mayDelete(const CellRow& row)
{
    return !refuseFileName(widget(), row.cells[0]) &&
           attempt(widget(), [&] { context().files.removeFile(textFile(m_folder, row.cells[0])); });
}

} // namespace quillfen
