#include "functions/security/blockers.h"

#include "functions/security/shared/actions.h"

namespace quillfen {
namespace {

ListFile badNickFile()
{
    return {R"(Security\BadNickBlocker\BadNickBlockerNickList.tbl)", "tBadNickBlockerNickList",
            ListFile::Form::Numbered};
}

ListFile exemptUserFile()
{
    return {R"(Security\CloneBlocker\CloneBlockerExemptUsers.tbl)", "tCloneBlockerExemptUsers",
            ListFile::Form::Presence};
}

/// A list of one-word rows, worded by what a row is called.
RowListDeclaration wordedList(const ListFile& file, const std::string& word)
{
    RowListDeclaration list = listOf(word, Fewest::None);
    list.menu = "mnuFirst";
    list.load = loadOf(file);
    list.save = saveOf(file);
    return list;
}

RowListDeclaration declaredBadNicks()
{
    RowListDeclaration list = wordedList(badNickFile(), "Bad Nick");
    list.list = "lvwBadNickList";
    list.toolbar = "tlbListview";
    list.label = "Bad Nicks";
    list.explanation = "Each row is a nick against which the action is taken.";
    list.columns = {"Nick"};
    return list;
}

RowListDeclaration declaredExemptUsers()
{
    RowListDeclaration list = wordedList(exemptUserFile(), "Exempt User");
    list.list = "lvwExemptUsers";
    list.toolbar = "tlbListview";
    list.label = "Exempt Users";
    list.explanation = "Each row is a user who is exempt from the action.";
    list.columns = {"User"};
    return list;
}

setting::Field exemptProfiles()
{
    return notRestored(setting::exemptProfiles().explained("Exempts the ticked profiles from the action."));
}

/// No key belongs to this check box: it only makes the form dirty.
Setting idleNotification()
{
    return setting::Idle{
        setting::flag("bSendNotification", "chkCheckBox", "Send Notification", false)
            .explained("Does nothing: this box is not saved, and the hub script is told nothing of it.")};
}

} // namespace

// RESTORE sets the action and its time; the lists of profiles stay.
const TableFile& badNickSettings()
{
    static const TableFile file = {
        R"(Security\BadNickBlocker\BadNickBlockerSettings.tbl)",
        "tBadNickBlockerSettings",
        {banTimeSetting("iTempBanTime"), actionSetting("TempBan"), exemptProfiles()},
        {"sAction", "iTempBanTime", "tExemptProfiles"},
    };
    return file;
}

const RowListDeclaration& badNicks()
{
    static const RowListDeclaration list = declaredBadNicks();
    return list;
}

const TableFile& cloneSettings()
{
    static const TableFile file = {
        R"(Security\CloneBlocker\CloneBlockerSettings.tbl)",
        "tCloneBlockerSettings",
        {banTimeSetting("iTempBanTime"), actionSetting("TempBan"), notRestored(setting::enabledProfiles()),
         exemptProfiles()},
        {"sAction", "iTempBanTime", "tExemptProfiles", "tEnabledProfiles"},
    };
    return file;
}

const RowListDeclaration& cloneExemptUsers()
{
    static const RowListDeclaration list = declaredExemptUsers();
    return list;
}

const TableFile& antiVirusSettings()
{
    static const TableFile file = {
        R"(Security\AntiVirus\AntiVirusSettings.tbl)",
        "tAntiVirusSettings",
        {banTimeSetting("iTempBanTime"), actionSetting("Disconnect"), idleNotification()},
        {"sAction", "iTempBanTime"},
    };
    return file;
}

FunctionDeclaration badNickBlockerFunction()
{
    return {.nodes = {{"Security~BadNickBlocker", "Bad Nick Blocker",
                       settingsAndListForm({"frmSecurityBadNickBlocker", "Security ~ BadNickBlocker"},
                                           badNickSettings, badNicks)}},
            .folders = {R"(Security\BadNickBlocker)"},
            .build = {RebuiltSettings{badNickSettings}, emptyTable(badNickFile())}};
}

FunctionDeclaration cloneBlockerFunction()
{
    return {.nodes = {{"Security~CloneBlocker", "CloneBlocker",
                       settingsAndListForm({"frmSecurityCloneBlocker", "Security ~ CloneBlocker"},
                                           cloneSettings, cloneExemptUsers)}},
            .folders = {R"(Security\CloneBlocker)"},
            .build = {RebuiltSettings{cloneSettings}, emptyTable(exemptUserFile())}};
}

FunctionDeclaration antiVirusFunction()
{
    return {.nodes = {{"Security~AntiVirus", "Anti-Virus",
                       settingsForm({"frmSecurityAntiVirus", "Security ~ AntiVirus"}, antiVirusSettings)}},
            .folders = {R"(Security\AntiVirus)"},
            .build = {RebuiltSettings{antiVirusSettings}}};
}

} // namespace quillfen
