#include "functions/security/floodform.h"

#include "functions/security/flood.h"
#include "shell/kit/editorform.h"
#include "shell/kit/permissiongridpart.h"

namespace quillfen {

EditorForm* makeFloodForm(const FormContext& context)
{
    FormDescription description{"frmSecurityFlood", "Security ~ Flood"};
    description.hasRestore = false;
    GridWords words;
    words.columns = {"Command", "By Profile", "On Profile", "Allow To", "iProfileBy", "iProfileOn"};
    words.filters = false;
    words.namesTarget = true;
    auto* form = new EditorForm(description);
    form->add(new PermissionGridPart(floodPermissions(), words, context));
    return form;
}

} // namespace quillfen
