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

namespace quillfen {
namespace {

TickListDescription blockedActions()
{
    TickListDescription actions;
    actions.control = "lvwBlockedActions";
    actions.label = "Blocked Actions";
    actions.file = blockedActionsFile();
    actions.restoreTicks = false;
    return actions;
}

GridWords registrationWords()
{
    GridWords words = unfilteredGrid();
    words.list = "lvwRegistrations";
    words.columns[3] = "Allow";
    words.yes = "True";
    words.no = "False";
    return words;
}

} // namespace

FormCatalogue securityForms()
{
    return {
        {{.name = "frmSecurityAntiAdvertiseAddresses",
          .caption = "Security ~ AntiAdvertise",
          .parts = Qt::Horizontal},
         {listPart(blockedAddresses), listPart(allowedAddresses)}},
        {{.name = "frmSecurityAntiAdvertiseSettings",
          .caption = "Security ~ AntiAdvertise ~  Settings",
          .parts = Qt::Horizontal},
         {DeclaredSettings{antiAdvertiseSettings}, DeclaredTicks{blockedActions}}},
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
        {{"frmSecurityKickSettings", "Security ~ Kicks ~ Settings"},
         {DeclaredSettings{kickSettings},
          DeclaredText{"tlbCheckBox", "Ascii Kick", std::string(kickAsciiFile)}}},
        settingsForm({"frmSecurityMainBlock", "Security ~ MainBlock"}, mainBlockSettings),
        {{"frmSecurityMainCleaner", "Security ~ MainCleaner"},
         {DeclaredSettings{mainCleanerSettings},
          DeclaredText{"tlbListview", "Cleaner Text", std::string(mainCleanerText)}}},
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
        {{.name = "frmSecurityRegistration", .caption = "Security ~ Registration", .reloadsAfterSave = true},
         {DeclaredSettings{registrationSettings},
          DeclaredGrid{[] { return sourceOf(registrationPermissions()); }, registrationWords()}}},
        settingsForm({"frmSecurityReport", "Security ~ Report"}, reportSettings),
        {{"frmSecurityRules", "Security ~ Rules"}, {rulesPart()}},
        settingsAndListForm(
            {.name = "frmSecuritySearchSpy", .caption = "Security ~ SearchSpy", .parts = Qt::Horizontal},
            searchSpySettings, forbiddenFiles),
        settingsForm({"frmSecurityUserLogSettings", "Security ~ UserLog"}, userLogSettings),
    };
}

} // namespace quillfen
