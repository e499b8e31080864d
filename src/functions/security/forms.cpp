#include "functions/security/forms.h"

#include "functions/security/kicksform.h"

namespace quillfen {

FormCatalogue securityForms()
{
    return {
        {"frmSecurityKickPermissions", makeKickPermissionsForm},
        {"frmSecurityKickSettings", makeKickSettingsForm},
    };
}

} // namespace quillfen
