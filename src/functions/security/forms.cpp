#include "functions/security/forms.h"

#include "functions/security/antiadvertiseform.h"
#include "functions/security/blockersform.h"
#include "functions/security/clientcheckerform.h"
#include "functions/security/floodform.h"
#include "functions/security/kicksform.h"
#include "functions/security/mainchat.h"
#include "functions/security/mainchatform.h"
#include "functions/security/privatehub.h"
#include "functions/security/profilerules.h"
#include "functions/security/profilerulesform.h"
#include "functions/security/ptokax.h"
#include "functions/security/registrationform.h"
#include "functions/security/report.h"
#include "functions/security/rulesform.h"
#include "functions/security/spies.h"
#include "functions/security/spiesform.h"
#include "functions/security/userlog.h"
#include "shell/kit/tablefilepart.h"

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
        settingsForm({"frmSecurityCommandSpy", "Security ~ CommandSpy"}, commandSpySettings()),
        {"frmSecurityFlood", makeFloodForm},
        {"frmSecurityKickPermissions", makeKickPermissionsForm},
        {"frmSecurityKickSettings", makeKickSettingsForm},
        settingsForm({"frmSecurityMainBlock", "Security ~ MainBlock"}, mainBlockSettings()),
        {"frmSecurityMainCleaner", makeMainCleanerForm},
        settingsForm({"frmSecurityMainLock", "Security ~ MainLock"}, mainLockSettings()),
        settingsForm({"frmSecurityPrivateHub", "Security~ PrivateHub"}, privateHubSettings()),
        {"frmSecurityProfileRuleRules", makeProfileRulesForm},
        settingsForm({"frmSecurityProfileRuleSettings", "Security ~ ProfileRules ~ Settings"},
                     profileRuleSettings()),
        settingsForm({"frmSecurityPtokaXSettings", "Security~ PtokaXSettings"}, ptokaXSettings()),
        {"frmSecurityRegistration", makeRegistrationForm},
        settingsForm({"frmSecurityReport", "Security ~ Report"}, reportSettings()),
        {"frmSecurityRules", makeRulesForm},
        {"frmSecuritySearchSpy", makeSearchSpyForm},
        settingsForm({"frmSecurityUserLogSettings", "Security ~ UserLog"}, userLogSettings()),
    };
}

} // namespace quillfen
