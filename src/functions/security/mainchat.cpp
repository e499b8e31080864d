#include "functions/security/mainchat.h"

namespace quillfen {
namespace {

/// The text that is shown after a cleaning.
constexpr const char* mainCleanerText = R"(Security\MainCleaner\MainCleaner.asc)";

Setting enabledProfiles()
{
    return setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles");
}

Setting exemptProfiles()
{
    return setting::profileFlags("tExemptProfiles", "lvwExemptProfiles", "Exempt Profiles");
}

} // namespace

const TableFile& mainBlockSettings()
{
    static const TableFile file = {
        R"(Security\MainBlock\MainBlockSettings.tbl)",
        "tMainBlockSettings",
        {setting::number("iBlockTime", "txtUpDown", "Temporary Block Time", 10, 5, 1440, setting::asTyped),
         enabledProfiles(), exemptProfiles()},
        {"tEnabledProfiles", "tExemptProfiles", "iBlockTime"},
    };
    return file;
}

const TableFile& mainLockSettings()
{
    static const TableFile file = {R"(Security\MainLock\MainLockSettings.tbl)",
                                   "tMainLockSettings",
                                   {enabledProfiles(), exemptProfiles()}};
    return file;
}

const TableFile& mainCleanerSettings()
{
    static const TableFile file = {
        R"(Security\MainCleaner\MainCleanerSettings.tbl)", "tMainCleanerSettings", {enabledProfiles()}};
    return file;
}

FunctionDeclaration mainBlockFunction()
{
    return {.nodes = {{"Security~MainBlock", "Main Block",
                       settingsForm({"frmSecurityMainBlock", "Security ~ MainBlock"}, mainBlockSettings)}},
            .folders = {R"(Security\MainBlock)"},
            .build = {RebuiltSettings{mainBlockSettings}}};
}

FunctionDeclaration mainCleanerFunction()
{
    return {.nodes = {{"Security~MainCleaner",
                       "Main Cleaner",
                       {{{"frmSecurityMainCleaner", "Security ~ MainCleaner"},
                         {DeclaredSettings{mainCleanerSettings},
                          DeclaredText{"tlbListview", "Cleaner Text", mainCleanerText}}}}}},
            .folders = {R"(Security\MainCleaner)"},
            .build = {RebuiltSettings{mainCleanerSettings}, FirstText{mainCleanerText, "Cleaned"}}};
}

FunctionDeclaration mainLockFunction()
{
    return {.nodes = {{"Security~MainLock", "Main Lock",
                       settingsForm({"frmSecurityMainLock", "Security ~ MainLock"}, mainLockSettings)}},
            .folders = {R"(Security\MainLock)"},
            .build = {RebuiltSettings{mainLockSettings}}};
}

} // namespace quillfen
