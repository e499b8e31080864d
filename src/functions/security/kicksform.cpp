#include "functions/security/kicksform.h"

#include "functions/security/kicks.h"
#include "shell/kit/editorform.h"
#include "shell/kit/permissiongridpart.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/textfilepart.h"

namespace quillfen {

EditorForm* makeKickSettingsForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityKickSettings", "Security ~ Kicks ~ Settings"});
    form->add(new TableFilePart(kickSettings(), context));
    form->add(new TextFilePart("tlbCheckBox", "Ascii Kick", std::string(kickAsciiFile), context));
    return form;
}

EditorForm* makeKickPermissionsForm(const FormContext& context)
{
    FormDescription description{"frmSecurityKickPermissions", "Security ~ Kicks ~ Permissions"};
    description.hasRestore = false;
    auto* form = new EditorForm(description);
    form->add(new PermissionGridPart(kickPermissions(), {}, context));
    return form;
}

} // namespace quillfen
