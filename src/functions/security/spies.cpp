#include "functions/security/spies.h"

#include "functions/security/shared/actions.h"

namespace quillfen {
namespace {

ListFile termsFile()
{
    return {R"(Security\SearchSpy\SearchSpyFiles.tbl)", "tSearchSpyFiles", ListFile::Form::Keyed};
}

/// The actions against a search: a ban for a time is none of them.
const std::vector<std::string>& searchActions()
{
    static const std::vector<std::string> words = {"Disconnect", "Warn", "Notify Ops", "Kick", "Ban"};
    return words;
}

/// The cells of a row.
enum TermCell
{
    Term,
    Action
};

std::vector<CellRow> loadTerms(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    std::vector<CellRow> rows;
    for (const ListRow& row : loadList(files, termsFile()))
        rows.push_back({{row.text, actionWord(searchActions(), row.second)}});
    return rows;
}

void saveTerms(const SettingsFiles& files, const HubProfiles& /*profiles*/, const std::vector<CellRow>& rows)
{
    std::vector<ListRow> list;
    list.reserve(rows.size());
    for (const CellRow& row : rows)
        list.push_back({row.cells[Term], setting::letterOf(row.cells[Action])});
    saveList(files, termsFile(), list);
}

RowListDeclaration declaredTerms()
{
    RowListDeclaration list = listOf("File", Fewest::One);
    list.list = "lvwFiles";
    list.toolbar = "tlbFiles";
    list.label = "Forbidden Files";
    list.explanation = "Each row is a forbidden search term and the action against it.";
    list.columns = {"File", "Action"};
    list.menu = "mnuFirst";
    list.dialog.form = EditForm::TextCombo;
    list.dialog.labels = {"File", "Action"};
    list.dialog.entries = {searchActions()};
    list.dialog.addValues = {"", "Kick"};
    list.labelsOf = [](const CellRow& row) {
        return std::vector<std::string>{row.cells[Term] + " File", "Action"};
    };
    list.deletion.title = "Delete Intro?"; // worded as that of the intros
    list.load = loadTerms;
    list.save = saveTerms;
    return list;
}

} // namespace

const TableFile& commandSpySettings()
{
    static const TableFile file = {
        R"(Security\CommandSpy\CommandSpySettings.tbl)",
        "tCommandSpySettings",
        {setting::enabledProfiles().explained("Lets the ticked profiles spy on commands.")}};
    return file;
}

const TableFile& searchSpySettings()
{
    static const TableFile file = {
        R"(Security\SearchSpy\SearchSpySettings.tbl)",
        "tSearchSpySettings",
        {setting::profileFlags("tAllowedProfiles", "lvwAllowedProfiles", "Enabled Profiles"),
         setting::profileFlags("tImmuneProfiles", "lvwImmuneProfiles", "Immune Profiles")},
        {"tImmuneProfiles", "tAllowedProfiles"},
    };
    return file;
}

const RowListDeclaration& forbiddenFiles()
{
    static const RowListDeclaration list = declaredTerms();
    return list;
}

FunctionDeclaration commandSpyFunction()
{
    return {.nodes = {{"Security~CommandSpy", "Command Spy",
                       settingsForm({"frmSecurityCommandSpy", "Security ~ CommandSpy"}, commandSpySettings)}},
            .folders = {R"(Security\CommandSpy)"},
            .build = {RebuiltSettings{commandSpySettings},
                      EmptyTable{R"(Security\CommandSpy\CommandSpyUsers.tbl)", "tCommandSpyUsers"}}};
}

FunctionDeclaration searchSpyFunction()
{
    const FormDescription form = {.name = "frmSecuritySearchSpy",
                                  .caption = "Security ~ SearchSpy",
                                  .parts = FormDescription::Parts::Beside};
    return {.nodes = {{"Security~SearchSpy", "Search Spy",
                       settingsAndListForm(form, searchSpySettings, forbiddenFiles)}},
            .folders = {R"(Security\SearchSpy)"},
            .build = {RebuiltSettings{searchSpySettings}, emptyTable(termsFile())}};
}

} // namespace quillfen
