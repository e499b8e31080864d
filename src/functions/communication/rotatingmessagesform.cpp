#include "functions/communication/rotatingmessagesform.h"

#include "functions/communication/rotatingmessages.h"
#include "shell/kit/editorform.h"
#include "shell/kit/folderfilespart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {
namespace {

EditorForm* makeForm(const FormDescription& description, const RotatingMessages& messages,
                     const FormContext& context)
{
    auto* form = new EditorForm(description);
    form->add(new TableFilePart(messages.settings, context));
    form->add(new FolderFilesPart(rotatingFiles(messages), messages.folder, context));
    return form;
}

} // namespace

EditorForm* makeRotatingMainMessageForm(const FormContext& context)
{
    return makeForm({"frmCommunicationRotatingMainMessage", "Communication ~ RotatingMainMessage"},
                    rotatingMainMessages(), context);
}

EditorForm* makeRotatingPrivateMessageForm(const FormContext& context)
{
    return makeForm({"frmCommunicationRotatingPrivateMessage", "Communication ~ RotatingPrivateMessage"},
                    rotatingPrivateMessages(), context);
}

} // namespace quillfen
