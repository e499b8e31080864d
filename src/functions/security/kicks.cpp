#include "functions/security/kicks.h"

namespace quillfen {
namespace {

/// The text that goes with a kick.
constexpr const char* kickAsciiFile = R"(Security\Kick\KickAscii.asc)";

GridCommand kickCommand(const std::string& word)
{
    return {word, R"(Security\Kick\KickCan)" + word + ".tbl", "tKickCan" + word};
}

/// A number that the file knows without a value.
setting::Field count(const char* key, const char* control, const char* label, int defaultValue, int minimum,
                     int maximum)
{
    return setting::number(key, control, label, defaultValue, minimum, maximum, setting::asTyped);
}

} // namespace

const TableFile& kickSettings()
{
    static const TableFile file = {
        R"(Security\Kick\KickSettings.tbl)",
        "tKickSettings",
        {
            setting::flag("bAnnounceNextArrival", "chkCheckBox(0)", "Announce Kicked Return", true)
                .explained("Announces the next arrival of a user who was kicked."),
            setting::flag("bCleanerActive", "chkCheckBox(1)", "Enable Kick Log Cleaner", true)
                .explained("Cleans old entries out of the kick log, at the cleaner's time."),
            setting::flag("bAsciiToMain", "chkCheckBox(2)", "Enable Ascii Kick", false)
                .explained("Shows the ascii kick text in main chat."),
            count("iWarnsMakeKick", "txtUpDown(0)", "Warns Make Kick", 5, 1, 50)
                .explained("Kicks a user who was warned this many times."),
            count("iKicksMakeBan", "txtUpDown(1)", "Kicks Make Ban", 5, 1, 50)
                .explained("Bans a user who was kicked this many times."),
            count("iTimeBansMakeBan", "txtUpDown(2)", "TempBans Make Ban", 5, 1, 50)
                .explained("Bans a user who had this many bans for a time."),
            count("iKickBanTime", "txtUpDown(3)", "Kick Ban Time", 10, 1, 500),
            count("iCleanOlderThan", "txtUpDown(4)", "Clean Older Than", 30, 1, 180)
                .explained("Sets how old an entry of the kick log becomes before the cleaner takes it out."),
            setting::number("iCleanerTime", "txtUpDown(5)", "Cleaner Time", 2355, 5, 2359,
                            {.savedAsTyped = true, .clockTime = true})
                .explained("Sets when the kick log is cleaned: 2355 is five minutes to midnight."),
            count("iTopKickers", "txtUpDown(6)", "Top Kickers", 10, 1, 100),
        },
        {"iWarnsMakeKick", "iKicksMakeBan", "iTimeBansMakeBan", "iKickBanTime", "bAnnounceNextArrival",
         "bCleanerActive", "iCleanOlderThan", "iCleanerTime", "iTopKickers", "bAsciiToMain"},
    };
    return file;
}

const PermissionGrid& kickPermissions()
{
    // The form's "TimeBan" is the rebuild's "TempBan": each has a file of its own. No form reads the
    // rebuild's, and a fresh tree has none for this one until its first save.
    static const PermissionGrid grid = {{kickCommand("Drop"), kickCommand("Warn"), kickCommand("Kick"),
                                         kickCommand("TimeBan"), kickCommand("Ban"), kickCommand("Unban")}};
    return grid;
}

FunctionDeclaration kicksFunction()
{
    const FormDescription permissions = {.name = "frmSecurityKickPermissions",
                                         .caption = "Security ~ Kicks ~ Permissions",
                                         .hasRestore = false};
    const GridWords words = {
        .explanation = "Lets users of the acting profile use the command on users of the target profile."};
    FunctionDeclaration function = {
        .nodes = {{"Security~Kicks", "Kicks"},
                  {"Security~Kicks~Settings",
                   "Settings",
                   {{{"frmSecurityKickSettings", "Security ~ Kicks ~ Settings"},
                     {DeclaredSettings{kickSettings},
                      DeclaredText{
                          "tlbCheckBox", "Ascii Kick", kickAsciiFile,
                          "Holds the ascii kick text, in which !victim! and !reason! are filled in."}}}},
                   "Kicks ~ Settings"},
                  {"Security~Kicks~Permissions", "Permissions",
                   gridForm(
                       permissions, [] { return sourceOf(kickPermissions()); }, words),
                   "Kicks ~ Permissions"}},
        .folders = {R"(Security\Kick)", R"(Security\Kick\Logs)"},
        .build = {RebuiltSettings{kickSettings}, FirstText{kickAsciiFile, "!victim!: !reason!"},
                  EmptyTable{R"(Security\Kick\Logs\KickerLog.tbl)", "tKickerLog"},
                  EmptyTable{R"(Security\Kick\Logs\KickLog.tbl)", "tKickLog"}}};
    for (const char* word : {"Ban", "Drop", "Kick", "TempBan", "Unban", "Warn"})
        function.build.emplace_back(RebuiltGrid{kickCommand(word)});
    return function;
}

} // namespace quillfen
