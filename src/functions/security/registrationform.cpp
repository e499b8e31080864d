#include "functions/security/registrationform.h"

#include "functions/security/registration.h"
#include "shell/kit/editorform.h"
#include "shell/kit/permissiongridpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeRegistrationForm(const FormContext& context)
{
    GridWords words;
    words.list = "lvwRegistrations";
    words.columns = {"Command", "By Profile", "On Profile", "Allow", "iProfileBy", "iProfileOn"};
    words.yes = "True";
    words.no = "False";
    words.filters = false;
    words.namesTarget = true;
    auto* form = new EditorForm({"frmSecurityRegistration", "Security ~ Registration"});
    form->add(new TableFilePart(registrationSettings(), context));
    form->add(new PermissionGridPart(registrationPermissions(), words, context));
    return form;
}

} // namespace quillfen
