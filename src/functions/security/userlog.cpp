#include "functions/security/userlog.h"

namespace quillfen {
namespace {

TableFile declaredUserLogSettings()
{
    return {
        R"(Security\UserLog\UserLogSettings.tbl)",
        "tUserLogSettings",
        {
            setting::flag("bEnableCleaner", "chkCheckBox(0)", "Enable Cleaner", true)
                .explained("Cleans old entries out of the user log, at the cleaner's time."),
            setting::flag("bEnableSaveTimer", "chkCheckBox(1)", "Enable Save On Timer", true)
                .explained("Saves the user log on a timer."),
            setting::flag("bEnableFileLog", "chkCheckBox(2)", "Enable Log To File", true),
            setting::number("iCleanOlderThan", "txtUpDown(0)", "Clean Older Than", 28, 1, 365,
                            {.unit = "Days"})
                .explained("Sets how old an entry of the user log becomes before the cleaner takes it out."),
            // Its end is the default, where the kick log's is 2359.
            setting::number("iCleanerTime", "txtUpDown(1)", "Cleaner Active Time", 2355, 5, 2355,
                            {.clockTime = true})
                .explained("Sets when the user log is cleaned: 2355 is five minutes to midnight."),
            setting::number("iSaveTimerInterval", "txtUpDown(2)", "Save Timer Interval", 60, 1, 86400)
                .explained("Sets the time between two saves of the user log."),
            setting::number("iTopHubbers", "txtUpDown(3)", "Number Of Top Hubbers to Show", 25, 1, 150),
            setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled View Log Profiles")
                .explained("Lets the ticked profiles view the user log."),
            setting::profileFlags("tEnabledLogProfiles", "lvwEnabledLogProfiles", "Enabled Log Profiles"),
        },
        {"bEnableCleaner", "iCleanOlderThan", "iCleanerTime", "iTopHubbers", "bEnableSaveTimer",
         "iSaveTimerInterval", "bEnableFileLog", "tEnabledProfiles", "tEnabledLogProfiles"},
    };
}

} // namespace

const TableFile& userLogSettings()
{
    static const TableFile file = declaredUserLogSettings();
    return file;
}

FunctionDeclaration userLogFunction()
{
    return {.nodes = {{"Security~UserLog", "UserLog",
                       settingsForm({"frmSecurityUserLogSettings", "Security ~ UserLog"}, userLogSettings)}},
            .folders = {R"(Security\UserLog)", R"(Security\UserLog\Logs)"},
            .build = {RebuiltSettings{userLogSettings},
                      EmptyTable{R"(Security\UserLog\UserLog.tbl)", "tUserLog"},
                      EmptyTable{R"(Security\UserLog\UserLogImmuneList.tbl)", "tUserLogImmuneList"}}};
}

} // namespace quillfen
