#include "functions/useractions/asciiform.h"

#include "functions/useractions/ascii.h"
#include "settings/filename.h"
#include "settings/tablefile.h"
#include "settings/textfolder.h"
#include "shell/kit/folderfilespart.h"
#include "shell/kit/messages.h"
#include "shell/kit/textedit.h"

namespace quillfen {
namespace {

/// A picture that is there already may be listed under any name that stays in the folder.
bool isGoodName(QWidget* parent, const SettingsFiles& files, const std::string& name)
{
    const bool isThere =
        leavingNameFault(name).empty() &&
        files.store().exists(files.paths().resolve(textFileOnDisk(files, asciiFolder, name)));
    return isThere || !refuseNewFile(parent->window(), name);
}

/// A row comes or changes only together with its picture.
bool isDrawn(QWidget* parent, const SettingsFiles& files, const CellRow& row, const CellRow* before)
{
    const std::string& name = row.cells.front();
    const bool isGood = before && before->cells.front() == name
                            ? !refuseListedFile(parent->window(), "Cannot open file", name)
                            : isGoodName(parent, files, name);
    return isGood && editTextFile(parent->window(), files, textFileOnDisk(files, asciiFolder, name));
}

} // namespace

std::unique_ptr<FormPart> makeAsciiPicturesPart(const RowListDeclaration& list, const FormContext& context)
{
    RowListHooks hooks = fileHooks(context, std::string(asciiFolder));
    hooks.accept = [&files = context.files](QWidget* parent, const CellRow& row, const CellRow* before) {
        return isDrawn(parent, files, row, before);
    };
    return std::make_unique<RowListPart>(list, context, std::move(hooks));
}

} // namespace quillfen
