#include "functions/communication/chatpermissionsform.h"

#include "functions/communication/chatpermissions.h"
#include "shell/kit/editorform.h"
#include "shell/kit/permissiongridpart.h"

namespace quillfen {
namespace {

EditorForm* makeForm(FormDescription description, const PermissionGrid& grid, const FormContext& context)
{
    description.hasRestore = false;
    GridWords words;
    words.columns += {"iProfileBy", "iProfileOn"};
    words.filters = false;
    words.namesTarget = true;
    auto* form = new EditorForm(description);
    form->add(new PermissionGridPart(grid, words, context));
    return form;
}

} // namespace

EditorForm* makeMuteForm(const FormContext& context)
{
    return makeForm({"frmCommunicationMute", "Communication ~ Mute"}, mutePermissions(), context);
}

EditorForm* makeTalkForm(const FormContext& context)
{
    return makeForm({"frmCommunicationTalk", "Communication ~ Talk"}, talkPermissions(), context);
}

} // namespace quillfen
