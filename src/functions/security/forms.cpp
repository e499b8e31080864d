#include "functions/security/forms.h"

#include "functions/security/antiadvertiseform.h"
#include "functions/security/blockersform.h"
#include "functions/security/clientcheckerform.h"
#include "functions/security/floodform.h"
#include "functions/security/kicksform.h"
#include "functions/security/mainchatform.h"
#include "functions/security/privatehubform.h"
#include "functions/security/profilerulesform.h"
#include "functions/security/ptokaxform.h"
#include "functions/security/registrationform.h"
#include "functions/security/reportform.h"
#include "functions/security/rulesform.h"
#include "functions/security/spiesform.h"
#include "functions/security/userlogform.h"

namespace quillfen {

FormCatalogue securityForms()
{
    return {
        {"frmSecurityAntiAdvertiseAddresses", makeAntiAdvertiseAddressesForm},
        {"frmSecurityAntiAdvertiseSettings", makeAntiAdvertiseSettingsForm},
        {"frmSecurityAntiVirus", makeAntiVirusForm},
        {"frmSecurityBadNickBlocker", makeBadNickBlockerForm},
        {"frmSecurityClientCheckerSettings", makeClientCheckerForm},
        {"frmSecurityCloneBlocker", makeCloneBlockerForm},
        {"frmSecurityCommandSpy", makeCommandSpyForm},
        {"frmSecurityFlood", makeFloodForm},
        {"frmSecurityKickPermissions", makeKickPermissionsForm},
        {"frmSecurityKickSettings", makeKickSettingsForm},
        {"frmSecurityMainBlock", makeMainBlockForm},
        {"frmSecurityMainCleaner", makeMainCleanerForm},
        {"frmSecurityMainLock", makeMainLockForm},
        {"frmSecurityPrivateHub", makePrivateHubForm},
        {"frmSecurityProfileRuleRules", makeProfileRulesForm},
        {"frmSecurityProfileRuleSettings", makeProfileRuleSettingsForm},
        {"frmSecurityPtokaXSettings", makePtokaXSettingsForm},
        {"frmSecurityRegistration", makeRegistrationForm},
        {"frmSecurityReport", makeReportForm},
        {"frmSecurityRules", makeRulesForm},
        {"frmSecuritySearchSpy", makeSearchSpyForm},
        {"frmSecurityUserLogSettings", makeUserLogForm},
    };
}

} // namespace quillfen
