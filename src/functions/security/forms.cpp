#include "functions/security/forms.h"

#include "functions/security/blockersform.h"
#include "functions/security/floodform.h"
#include "functions/security/kicksform.h"
#include "functions/security/mainchatform.h"

namespace quillfen {

FormCatalogue securityForms()
{
    return {
        {"frmSecurityAntiVirus", makeAntiVirusForm},
        {"frmSecurityBadNickBlocker", makeBadNickBlockerForm},
        {"frmSecurityCloneBlocker", makeCloneBlockerForm},
        {"frmSecurityFlood", makeFloodForm},
        {"frmSecurityKickPermissions", makeKickPermissionsForm},
        {"frmSecurityKickSettings", makeKickSettingsForm},
        {"frmSecurityMainBlock", makeMainBlockForm},
        {"frmSecurityMainCleaner", makeMainCleanerForm},
        {"frmSecurityMainLock", makeMainLockForm},
    };
}

} // namespace quillfen
