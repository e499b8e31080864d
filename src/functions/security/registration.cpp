#include "functions/security/registration.h"

#include "settings/tablewriter.h"

namespace quillfen {
namespace {

GridCommand registrationCommand(const std::string& word, const std::string& name)
{
    return {word, R"(Security\Registration\Registration)" + name + ".tbl", "tRegistration" + name};
}

/// A rebuild looks for each setting under swapped names, finds none, and writes the defaults whatever the
/// file holds. Its last key has an `s` too many, so that the form shows the hub's first profile after it and
/// writes the key that it reads with its next save.
void resetSettings(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    const TableFile& file = registrationSettings();
    TableWriter table(file.table);
    table.row("bAllowRegme", "1").row("bKeepLog", "1").text("sPrefix", "").row("iRegProfiles", "3");
    files.WriteSettingsFile(file.path, table.closed());
}

GridWords gridWords()
{
    GridWords words = unfilteredGrid();
    words.list = "lvwRegistrations";
    words.columns[3] = "Allow";
    words.yes = "True";
    words.no = "False";
    words.targetLink = "of";
    words.explanation =
        "Sets whose registrations a profile may add and delete, and whose passwords it may get and change.";
    return words;
}

} // namespace

const TableFile& registrationSettings()
{
    static const TableFile file = {
        R"(Security\Registration\RegistrationSettings.tbl)",
        "tRegistrationSettings",
        {
            setting::flag("bAllowRegme", "chkCheckBox(0)", "Enable Regme", true)
                .explained("Lets users give the regme command."),
            setting::flag("bKeepLog", "chkCheckBox(1)", "Keep Log", true),
            setting::text("sPrefix", "txtTextBox(0)", "Prefix", ""),
            notRestored(setting::profileKey("iRegProfile", "cboComboBox", "Registration Profile")
                            .explained("Sets the profile that a newly registered user gets.")),
        },
    };
    return file;
}

const PermissionGrid& registrationPermissions()
{
    static const PermissionGrid grid = {{registrationCommand("Add Registration", "Add"),
                                         registrationCommand("Delete Registration", "Delete"),
                                         registrationCommand("Get Password", "GetPassword"),
                                         registrationCommand("Change Password", "ChangePassword")},
                                        1};
    return grid;
}

FunctionDeclaration registrationFunction()
{
    const FormDescription form = {
        .name = "frmSecurityRegistration", .caption = "Security ~ Registration", .reloadsAfterSave = true};
    FunctionDeclaration function = {
        .nodes = {{"Security~Registration",
                   "Registration",
                   {{form,
                     {DeclaredSettings{registrationSettings},
                      DeclaredGrid{[] { return sourceOf(registrationPermissions()); }, gridWords()}}}}}},
        .folders = {R"(Security\Registration)", R"(Security\Registration\Logs)"}};
    for (const char* name : {"Add", "ChangePassword", "Delete", "GetPassword"})
        function.build.emplace_back(
            RebuiltGrid{registrationCommand({}, name), registrationPermissions().firstProfile});
    function.build.emplace_back(resetSettings);
    return function;
}

} // namespace quillfen
