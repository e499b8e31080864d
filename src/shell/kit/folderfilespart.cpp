#include "shell/kit/folderfilespart.h"

#include "settings/codepage.h"
#include "settings/filename.h"
#include "settings/tablefile.h"
#include "settings/textfolder.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/inputbox.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/textedit.h"

#include <algorithm>

namespace quillfen {

RowFilesPart::RowFilesPart(const RowListDeclaration& declaration, std::string folder,
                           const FormContext& context)
    : RowListPart(declaration, context),
      m_folder(std::move(folder))
{
}

std::string RowFilesPart::pathOf(const CellRow& row) const
{
    return context().files.realFile(textFile(m_folder, row.cells[0]));
}

std::string RowFilesPart::refusal(const CellRow& row) const
{
    const std::string fault = leavingNameFault(row.cells[0]);
    return fault.empty() ? RowListPart::refusal(row) : row.cells[0] + "\n\n" + fault;
}

bool RowFilesPart::mayDelete(const CellRow& row)
{
    return attempt(widget(), deleting(fromBytes(row.cells[0])),
                   [&] { context().files.removeFile(pathOf(row)); });
}

void FolderFilesPart::load()
{
    RowFilesPart::load();
    QStringList unlisted;
    for (const std::string& name : context().files.untoldFileNames(folder()))
        unlisted.append(QString::fromStdString(name).simplified());
    emit note(unlisted.isEmpty()
                  ? QString()
                  : "Not listed: " + unlisted.join(", ") + " (the hub script can't read such a name)");
}

bool FolderFilesPart::isGoodName(const std::string& name)
{
    // Only the typed name is lowered: it is refused for a row "hello", and not for a row "Hello".
    if (std::any_of(rows().begin(), rows().end(),
                    [&](const CellRow& row) { return row.cells[0] == codepage::lowered(name); })) {
        notify(widget(), "Error", "File already exists", QMessageBox::Warning);
        return false;
    }
    return !refuseNewFile(widget(), name);
}

std::string FolderFilesPart::askName()
{
    const RowDialog& words = declaration().dialog;
    for (;;) {
        std::string name = askText(widget(), fromBytes(words.addTitle), fromBytes(words.labels.front()));
        if (name.empty() || isGoodName(name))
            return name;
    }
}

void FolderFilesPart::add()
{
    const std::string name = askName();
    if (name.empty() || !editTextFile(widget()->window(), context().files, textFile(folder(), name),
                                      TextEditDialog::Mode::New))
        return;
    list().append({{name}});
    list().select(static_cast<int>(rows().size()) - 1);
    touch();
}

void FolderFilesPart::edit()
{
    const int row = list().currentRow();
    if (row < 0)
        return;
    const CellRow& file = rows()[static_cast<std::size_t>(row)];
    // A table written by hand can hold a name that leads out of the folder.
    if (!refuseListedFile(widget(), "Cannot open file", file.cells[0]))
        editTextFile(widget()->window(), context().files, pathOf(file));
}

} // namespace quillfen
