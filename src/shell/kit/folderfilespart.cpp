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

namespace {

RowListHooks withRefusal(RowListHooks hooks, const std::function<std::string(const CellRow&)>& refuse)
{
    if (refuse) {
        hooks.refuse = [refuse, otherwise = hooks.refuse](const CellRow& row) {
            const std::string reason = refuse(row);
            return reason.empty() ? otherwise(row) : reason;
        };
    }
    return hooks;
}

} // namespace

RowListHooks fileHooks(const FormContext& context, const std::string& folder)
{
    RowListHooks hooks;
    hooks.takesText = false;
    hooks.refuse = [](const CellRow& row) {
        const std::string fault = leavingNameFault(row.cells[0]);
        return fault.empty() ? fault : row.cells[0] + "\n\n" + fault;
    };
    hooks.release = [&files = context.files, folder](QWidget* parent, const CellRow& row) {
        return attempt(parent, deleting(fromBytes(row.cells[0])),
                       [&] { files.removeFile(textFileOnDisk(files, folder, row.cells[0])); });
    };
    return hooks;
}

FolderFilesPart::FolderFilesPart(const RowListDeclaration& declaration, std::string folder,
                                 const FormContext& context,
                                 const std::function<std::string(const CellRow&)>& refuse)
    : RowListPart(declaration, context, withRefusal(fileHooks(context, folder), refuse)),
      m_folder(std::move(folder))
{
}

void FolderFilesPart::load()
{
    RowListPart::load();
    QStringList unlisted;
    for (const std::string& name : context().files.untoldFileNames(m_folder))
        unlisted.append(QString::fromStdString(name).simplified());
    emit note(unlisted.isEmpty()
                  ? QString()
                  : "Not listed: " + unlisted.join(", ") + " (the hub script can't read such a name)");
}

std::vector<EditedText> FolderFilesPart::editedTexts()
{
    std::vector<EditedText> all;
    for (const CellRow& row : rows())
        all.push_back({textFile(m_folder, row.cells[0]), &list(), static_cast<int>(all.size())});
    return all;
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
    if (name.empty() || !editTextFile(widget()->window(), context().files, textFile(m_folder, name),
                                      TextEditDialog::Mode::New))
        return;
    append({{name}});
}

void FolderFilesPart::edit()
{
    const int row = list().currentRow();
    if (row < 0)
        return;
    const CellRow& file = rows()[static_cast<std::size_t>(row)];
    // A table written by hand can hold a name that leads out of the folder.
    if (!refuseListedFile(widget(), "Cannot open file", file.cells[0]))
        editTextFile(widget()->window(), context().files,
                     textFileOnDisk(context().files, m_folder, file.cells[0]));
}

} // namespace quillfen
