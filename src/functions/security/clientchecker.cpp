#include "functions/security/clientchecker.h"

#include "declarations/oddfiles.h"
#include "functions/security/shared/actions.h"
#include "settings/lines.h"

namespace quillfen {
namespace {

ListFile versionsFile()
{
    return {clientVersionsFile, "tClientVersions", ListFile::Form::Keyed};
}

/// The cells of a row.
enum VersionCell
{
    Client,
    MinVersion,
    Allow
};

/// A client's value is `<allow>^<min version>`.
std::vector<CellRow> loadVersions(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    std::vector<CellRow> rows;
    for (const ListRow& row : loadList(files, versionsFile())) {
        const auto [allow, version, found] = splitInPieces(row.second, '^');
        rows.push_back({{row.text, std::string(version), isOne(allow) ? "True" : "False"}});
    }
    return rows;
}

void saveVersions(const SettingsFiles& files, const HubProfiles& /*profiles*/,
                  const std::vector<CellRow>& rows)
{
    std::vector<ListRow> list;
    list.reserve(rows.size());
    for (const CellRow& row : rows)
        list.push_back(
            {row.cells[Client], (row.cells[Allow] == "True" ? "1^" : "0^") + row.cells[MinVersion]});
    saveList(files, versionsFile(), list);
}

std::vector<std::string> trimmed(const std::vector<std::string>& texts)
{
    std::vector<std::string> all;
    all.reserve(texts.size());
    for (const std::string& text : texts)
        all.emplace_back(trimBlanks(text));
    return all;
}

RowListDeclaration declaredVersions()
{
    RowListDeclaration list = listOf("Client", Fewest::One);
    list.list = "lvwClients";
    list.toolbar = "tlbClients";
    list.explanation =
        "Each row is a client program, the version that it needs, and whether it may enter the hub.";
    list.columns = {"Client", "Min Version", "Allow"};
    list.menu = "mnuFirst";
    list.dialog.form = EditForm::TwoTextCombo;
    list.dialog.editTitle = "Edit File";
    list.dialog.labels = {"Client", "Min Version", "Allow"};
    list.dialog.entries = {{"True", "False"}};
    list.dialog.addMode = 4;
    list.labelsOf = [](const CellRow& row) {
        return std::vector<std::string>{row.cells[Client] + " Client", "Min Version", "Allow"};
    };
    list.fieldsOf = [](const CellRow& row) { return trimmed(row.cells); };
    list.take = [](const std::vector<std::string>& fields, CellRow& row) {
        const bool isAdded = row.cells[Allow].empty(); // one that is edited has its word there
        row.cells = isAdded ? fields : trimmed(fields);
    };
    list.load = loadVersions;
    list.save = saveVersions;
    return list;
}

/// RESTORE sets the action and its time; the lists stay.
TableFile declaredClientCheckerSettings()
{
    auto types = notRestored(setting::namedFlags("tBlock", "lvwBlockedTypes", "Blocked Connection Types",
                                                 {"Sockets", "Passive", "Active", "Undeclared"})
                                 .explained("Refuses users who connect in a ticked way."));
    types.rebuild.resets = true; // a rebuild opens the hub to every kind of connection again
    return {
        R"(Security\ClientChecker\ClientCheckerSettings.tbl)",
        "tClientCheckerSettings",
        {
            banTimeSetting("iBanTime"),
            actionSetting("TempBan"),
            // The key says enabled and the label says exempt: one list, and both words stay.
            notRestored(setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Exempt Profiles")
                            .explained("Sets whom the check covers, by profile.")),
            types,
        },
        {"sAction", "iBanTime", "tBlock", "tEnabledProfiles"},
    };
}

} // namespace

const TableFile& clientCheckerSettings()
{
    static const TableFile file = declaredClientCheckerSettings();
    return file;
}

const RowListDeclaration& clientVersions()
{
    static const RowListDeclaration list = declaredVersions();
    return list;
}

FunctionDeclaration clientCheckerFunction()
{
    return {.nodes = {{"Security~ClientChecker", "Client Checker",
                       settingsAndListForm({"frmSecurityClientCheckerSettings", "Security ~ ClientChecker"},
                                           clientCheckerSettings, clientVersions)}},
            .folders = {R"(Security\ClientChecker)"},
            .build = {RebuiltSettings{clientCheckerSettings}, emptyTable(versionsFile())}};
}

} // namespace quillfen
