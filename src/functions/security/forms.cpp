#include "functions/security/forms.h"

#include "functions/security/antiadvertise.h"
#include "functions/security/blockers.h"
#include "functions/security/clientchecker.h"
#include "functions/security/flood.h"
#include "functions/security/kicks.h"
#include "functions/security/mainchat.h"
#include "functions/security/privatehub.h"
#include "functions/security/profilerules.h"
#include "functions/security/ptokax.h"
#include "functions/security/registration.h"
#include "functions/security/report.h"
#include "functions/security/rulesform.h"
#include "functions/security/spies.h"
#include "functions/security/userlog.h"
#include "shell/kit/declaredforms.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/textfilepart.h"
#include "shell/kit/ticklistpart.h"

namespace quillfen {
namespace {

FormParts antiAdvertiseParts(const FormContext& context)
{
    TickListDescription actions;
    actions.control = "lvwBlockedActions";
    actions.label = "Blocked Actions";
    actions.file = blockedActionsFile();
    actions.restoreTicks = false;
    return {new TableFilePart(antiAdvertiseSettings(), context), new TickListPart(actions, context)};
}

FormParts addressParts(const FormContext& context)
{
    return {new RowListPart(blockedAddresses(), context), new RowListPart(allowedAddresses(), context)};
}

FormParts kickParts(const FormContext& context)
{
    return {new TableFilePart(kickSettings(), context),
            new TextFilePart("tlbCheckBox", "Ascii Kick", std::string(kickAsciiFile), context)};
}

FormParts mainCleanerParts(const FormContext& context)
{
    return {new TableFilePart(mainCleanerSettings(), context),
            new TextFilePart("tlbListview", "Cleaner Text", std::string(mainCleanerText), context)};
}

FormParts registrationParts(const FormContext& context)
{
    GridWords words = unfilteredGrid();
    words.list = "lvwRegistrations";
    words.columns[3] = "Allow";
    words.yes = "True";
    words.no = "False";
    return {new TableFilePart(registrationSettings(), context),
            new PermissionGridPart(registrationPermissions(), words, context)};
}

} // namespace

FormCatalogue securityForms()
{
    return {
        formOf({.name = "frmSecurityAntiAdvertiseAddresses",
                .caption = "Security ~ AntiAdvertise",
                .parts = Qt::Horizontal},
               addressParts),
        formOf({.name = "frmSecurityAntiAdvertiseSettings",
                .caption = "Security ~ AntiAdvertise ~  Settings",
                .parts = Qt::Horizontal},
               antiAdvertiseParts),
        settingsForm({"frmSecurityAntiVirus", "Security ~ AntiVirus"}, antiVirusSettings),
        settingsAndListForm({"frmSecurityBadNickBlocker", "Security ~ BadNickBlocker"}, badNickSettings,
                            badNicks),
        settingsAndListForm({"frmSecurityClientCheckerSettings", "Security ~ ClientChecker"},
                            clientCheckerSettings, clientVersions),
        settingsAndListForm({"frmSecurityCloneBlocker", "Security ~ CloneBlocker"}, cloneSettings,
                            cloneExemptUsers),
        settingsForm({"frmSecurityCommandSpy", "Security ~ CommandSpy"}, commandSpySettings),
        gridForm(
            {.name = "frmSecurityFlood", .caption = "Security ~ Flood", .hasRestore = false},
            [] { return sourceOf(floodPermissions()); }, unfilteredGrid()),
        gridForm({.name = "frmSecurityKickPermissions",
                  .caption = "Security ~ Kicks ~ Permissions",
                  .hasRestore = false},
                 [] { return sourceOf(kickPermissions()); }, {}),
        formOf({"frmSecurityKickSettings", "Security ~ Kicks ~ Settings"}, kickParts),
        settingsForm({"frmSecurityMainBlock", "Security ~ MainBlock"}, mainBlockSettings),
        formOf({"frmSecurityMainCleaner", "Security ~ MainCleaner"}, mainCleanerParts),
        settingsForm({"frmSecurityMainLock", "Security ~ MainLock"}, mainLockSettings),
        settingsForm({"frmSecurityPrivateHub", "Security~ PrivateHub"}, privateHubSettings),
        listsForm({.name = "frmSecurityProfileRuleRules",
                   .caption = "Security ~ ProfileRules ~ Rules",
                   .hasRestore = false,
                   .reloadsAfterSave = true},
                  profileRules),
        settingsForm({"frmSecurityProfileRuleSettings", "Security ~ ProfileRules ~ Settings"},
                     profileRuleSettings),
        settingsForm({"frmSecurityPtokaXSettings", "Security~ PtokaXSettings"}, ptokaXSettings),
        formOf({.name = "frmSecurityRegistration",
                .caption = "Security ~ Registration",
                .reloadsAfterSave = true},
               registrationParts),
        settingsForm({"frmSecurityReport", "Security ~ Report"}, reportSettings),
        {"frmSecurityRules", makeRulesForm},
        settingsAndListForm(
            {.name = "frmSecuritySearchSpy", .caption = "Security ~ SearchSpy", .parts = Qt::Horizontal},
            searchSpySettings, forbiddenFiles),
        settingsForm({"frmSecurityUserLogSettings", "Security ~ UserLog"}, userLogSettings),
    };
}

} // namespace quillfen
