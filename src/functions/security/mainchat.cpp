#include "functions/security/mainchat.h"

namespace quillfen {
namespace {

/// The text that is shown after a cleaning.
constexpr const char* mainCleanerText = R"(Security\MainCleaner\MainCleaner.asc)";

} // namespace

const TableFile& mainBlockSettings()
{
    static const TableFile file = {
        R"(Security\MainBlock\MainBlockSettings.tbl)",
        "tMainBlockSettings",
        {setting::number("iBlockTime", "txtUpDown", "Temporary Block Time", 10, 5, 1440, setting::asTyped)
             .explained("Sets how long a temporary block of main chat lasts."),
         setting::enabledProfiles().explained("Lets the ticked profiles block main chat for a time."),
         setting::exemptProfiles().explained("Exempts the ticked profiles from a block of main chat.")},
        {"tEnabledProfiles", "tExemptProfiles", "iBlockTime"},
    };
    return file;
}

const TableFile& mainLockSettings()
{
    static const TableFile file = {
        R"(Security\MainLock\MainLockSettings.tbl)",
        "tMainLockSettings",
        {setting::enabledProfiles().explained("Lets the ticked profiles lock main chat."),
         setting::exemptProfiles().explained("Exempts the ticked profiles from a lock of main chat.")}};
    return file;
}

const TableFile& mainCleanerSettings()
{
    static const TableFile file = {
        R"(Security\MainCleaner\MainCleanerSettings.tbl)",
        "tMainCleanerSettings",
        {setting::enabledProfiles().explained("Lets the ticked profiles clean main chat.")}};
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
                          DeclaredText{"tlbListview", "Cleaner Text", mainCleanerText,
                                       "Holds the text that is shown after main chat was cleaned."}}}}}},
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
