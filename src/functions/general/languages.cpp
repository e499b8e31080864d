#include "functions/general/languages.h"

#include "settings/filename.h"
#include "settings/tablewriter.h"

namespace quillfen {
namespace {

constexpr std::string_view currentKey = "Current";

constexpr LanguageSet sets[] = {
    {
        .form = "frmLanguageCommands",
        .caption = "Language ~ Commands",
        .listFile = R"(Language\Commands\CommandLanguages.tbl)",
        .listTable = "tCommandLanguages",
        .folder = R"(Language\Commands\Files\)",
        .textTable = "tScriptCommands",
        .keyColumn = "Command ID",
        .textColumn = "Command",
        .newTitle = "Add New Command",
        .newPrompt = "Enter name of new Command File:",
        .duplicateTail = " already exists as a Command Language File",
        .deleteRefusal = "DEFAULT Command File cannot be deleted",
        .editTitle = "Edit Command",
        .editLabel = "Command",
        .namesExplained = "Each row is a language for the command words, and the ticked one is in use.",
        .textsExplained = "Each row is a command and the word for it in the open language.",
    },
    {
        .form = "frmLanguageRightClick",
        .caption = "Language ~ RightClick",
        .listFile = R"(Language\RightClick\RightClickLanguages.tbl)",
        .listTable = "tRightClickLanguages",
        .folder = R"(Language\RightClick\Files\)",
        .textTable = "tScriptRightClick",
        .keyColumn = "RightClick ID",
        .textColumn = "RightClick",
        .newTitle = "Add New RightClick",
        .newPrompt = "Enter name of new RightClick:",
        .duplicateTail = " already exists as a RightClick Language File",
        .deleteRefusal = "DEFAULT RightClick cannot be deleted",
        .editTitle = "Edit RightClick",
        .editLabel = "RightClick",
        .namesExplained = "Each row is a language for the right click menus, and the ticked one is in use.",
        .textsExplained = "Each row is a text of the right click menus in the open language.",
    },
    {
        .form = "frmLanguageMessages",
        .caption = "Language ~ Messages",
        .listFile = R"(Language\Messages\MessageLanguages.tbl)",
        .listTable = "tMessageLanguages",
        .folder = R"(Language\Messages\Files\)",
        .textTable = "tScriptMessages",
        .keyColumn = "Message ID",
        .textColumn = "Message",
        .newTitle = "Add New Command", // kept from the commands, like the refusal below
        .newPrompt = "Enter name of new Message File:",
        .duplicateTail = " already exists as a Message Language File",
        .deleteRefusal = "DEFAULT Command File cannot be deleted",
        .editTitle = "Edit Message",
        .editLabel = "Message",
        .namesExplained = "Each row is a language for the messages to users, and the ticked one is in use.",
        .textsExplained = "Each row is a message to users in the open language.",
    },
};

std::string languagePath(const LanguageSet& set, std::string_view name)
{
    return std::string(set.folder).append(name).append(".tbl");
}

std::vector<ListRow> referenceList(const SettingsFiles& files, const LanguageSet& set)
{
    std::vector<ListRow> list;
    files.ReadTableToList(files.realFile(languagePath(set, referenceLanguage)), list, "=", set.textTable);
    return list;
}

std::vector<PlacedText> placedLanguageTexts(const LanguageSet& set, const SettingsFiles& files)
{
    std::vector<PlacedText> texts;
    int place = 0;
    for (const CellRow& language : loadLanguages(files, set)) {
        const std::string& name = language.cells[0];
        const bool isReadable = leavingNameFault(name).empty(); // as the form has it
        for (const CellRow& text : isReadable ? loadLanguageTexts(files, set, name) : std::vector<CellRow>())
            texts.push_back({languagePath(set, name), "lvwFiles", place, std::string(set.textColumn),
                             name + ": " + text.cells[0] + " | " + text.cells[1]});
        ++place;
    }
    return texts;
}

Node languageNode(const std::string& key, const std::string& caption, std::size_t set)
{
    FormDescription form = {std::string(sets[set].form), std::string(sets[set].caption), {10500, 6000}};
    form.isLoadedOnce = true;
    const auto texts = [set](const SettingsFiles& files, const HubProfiles&) {
        return placedLanguageTexts(sets[set], files);
    };
    const auto lists = [set] { return std::vector{languageLists(sets[set]).names}; };
    const OwnPart part = {.kind = OwnPartKind::Languages,
                          .which = set,
                          .lists = lists,
                          .texts = texts,
                          .paths = {std::string(sets[set].folder)}};
    return {.key = key,
            .caption = caption,
            .form = {{form, {part}}},
            .dropDown = "Language~" + caption,
            .above = "General~Language"}; // the keys came before their heading
}

} // namespace

std::span<const LanguageSet> languageSets()
{
    return sets;
}

ListedFiles languageLists(const LanguageSet& set)
{
    ListedFiles files;
    files.names.list = "lvwFiles";
    files.names.toolbar = "tlbFiles";
    files.names.explanation = set.namesExplained;
    files.names.columns = {"Languages"};
    files.names.ticks = true;
    files.names.menu = "mnuFirst";
    files.names.dialog.addTitle = set.newTitle;
    files.names.dialog.labels = {std::string(set.newPrompt)};
    files.names.deletion = {"Delete Language File?", "Are you sure you wish to delete "};
    files.names.load = [&set](const SettingsFiles& on, const HubProfiles&) { return loadLanguages(on, set); };
    files.names.save = [&set](const SettingsFiles& on, const HubProfiles&, const std::vector<CellRow>& rows) {
        saveLanguages(on, set, rows);
    };
    files.rows.list = "lvwTexts";
    files.rows.toolbar = "tlbTexts";
    files.rows.explanation = set.textsExplained;
    files.rows.columns = {std::string(set.keyColumn), std::string(set.textColumn)};
    files.rows.dialog.editTitle = set.editTitle;
    files.rows.dialog.labels = {std::string(set.editLabel)};
    files.rows.fieldsOf = [](const CellRow& row) { return std::vector<std::string>{row.cells[1]}; };
    files.rows.take = [](const std::vector<std::string>& fields, CellRow& row) { row.cells[1] = fields[0]; };
    files.chooseTitle = "Select Language File to open";
    files.folder = set.folder;
    files.filter = "(*.TBL)";
    files.patterns = "*.tbl *.TBL";
    files.refusesAdding = "Cannot Add Language File";
    return files;
}

std::vector<CellRow> loadLanguages(const SettingsFiles& files, const LanguageSet& set)
{
    std::vector<ListRow> list;
    files.ReadTableToList(set.listFile, list, "=", set.listTable);
    std::vector<CellRow> rows;
    rows.reserve(list.size());
    for (const ListRow& row : list)
        rows.push_back({{row.second}, row.text == currentKey});
    return rows;
}

void saveLanguages(const SettingsFiles& files, const LanguageSet& set, const std::vector<CellRow>& rows)
{
    TableWriter table(set.listTable);
    int number = 0; // counts the others alone, so that there is no gap at the current one
    for (const CellRow& row : rows)
        table.text(row.checked ? std::string(currentKey) : bracketed(std::to_string(++number)),
                   row.cells.at(0));
    files.WriteSettingsFile(set.listFile, table.closed());
}

std::vector<CellRow> loadReferenceTexts(const SettingsFiles& files, const LanguageSet& set)
{
    return cellRows(referenceList(files, set));
}

std::vector<CellRow> loadLanguageTexts(const SettingsFiles& files, const LanguageSet& set,
                                       std::string_view name)
{
    auto list = referenceList(files, set);
    files.ReadListColumn(files.realFile(languagePath(set, name)), set.textTable, list);
    return cellRows(std::move(list));
}

void saveLanguageTexts(const SettingsFiles& files, const LanguageSet& set, std::string_view name,
                       const std::vector<CellRow>& rows)
{
    TableWriter table(set.textTable);
    for (const CellRow& row : rows)
        table.text(row.cells.at(0), row.cells.at(1));
    files.WriteSettingsFile(languagePath(set, name), table.closed());
}

FunctionDeclaration languagesFunction()
{
    return {.nodes = {{"General~Language", "Language"},
                      languageNode("General~Commands", "Commands", 0),
                      languageNode("General~Messages", "Messages", 2),
                      languageNode("General~RightClicks", "RightClicks", 1)},
            .folders = {"Language", R"(Language\Commands)", R"(Language\Commands\Files)",
                        R"(Language\Messages)", R"(Language\Messages\Files)", R"(Language\RightClick)",
                        R"(Language\RightClick\Files)"}};
}

} // namespace quillfen
