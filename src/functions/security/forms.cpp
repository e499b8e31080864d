#include "functions/security/forms.h"

#include "functions/security/kicksform.h"
#include "functions/security/mainchatform.h"

namespace quillfen {

FormCatalogue securityForms()
{
    return {
        {"frmSecurityKickPermissions", makeKickPermissionsForm},
        {"frmSecurityKickSettings", makeKickSettingsForm},
        {"frmSecurityMainBlock", makeMainBlockForm},
        {"frmSecurityMainCleaner", makeMainCleanerForm},
        {"frmSecurityMainLock", makeMainLockForm},
    };
}

} // namespace quillfen
