#include "functions/useractions/ascii.h"

#include "settings/tablewriter.h"

namespace quillfen {
namespace {

constexpr std::string_view indexPath = R"(UserActions\Ascii\AsciiIndex.tbl)";
constexpr std::string_view indexTable = "tAsciiIndex";

/// The keys of a picture's table, in the order of the list's columns.
constexpr std::string_view keys[] = {"sFilename", "sDisplayName", "sMenu"};

/// The first number without a file name ends the list.
std::vector<CellRow> loadIndex(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    const auto index = files.index(indexPath);
    std::vector<CellRow> rows;
    for (int number = 1;; ++number) {
        CellRow row;
        for (const auto key : keys)
            row.cells.push_back(index.value(key, std::to_string(number)));
        if (row.cells.front().empty())
            return rows;
        rows.push_back(std::move(row));
    }
}

void saveIndex(const SettingsFiles& files, const HubProfiles& /*profiles*/, const std::vector<CellRow>& rows)
{
    TableWriter table(indexTable);
    int number = 0;
    for (const CellRow& row : rows) {
        table.open(bracketed(std::to_string(++number)));
        for (std::size_t cell = 0; cell < std::size(keys); ++cell)
            table.text(keys[cell], row.cells.at(cell));
        table.close();
    }
    files.WriteSettingsFile(indexPath, table.closed());
}

} // namespace

const TableFile& asciiSettings()
{
    static const TableFile file = {
        R"(UserActions\Ascii\AsciiSettings.tbl)",
        "tAsciiSettings",
        {
            setting::flag("bInMain", "chkCheckBox(0)", "Show In Main", true),
            setting::flag("bInMainGlobal", "chkCheckBox(1)", "Show In Main To All", true),
            setting::flag("bEnableNoCommand", "chkCheckBox(2)", "Enable No Command", true),
            notRestored(setting::enabledProfiles().explained("Lets the ticked profiles show pictures.")),
            notRestored(setting::profileFlags("tEnabledRC", "lvwEnabledRCs", "Enabled Right Clicks")
                            .explained("Lets the ticked profiles show pictures by right click.")),
        },
        {"bInMain", "bInMainGlobal", "bEnableNoCommand", "tEnabledRC", "tEnabledProfiles"},
    };
    return file;
}

const RowListDeclaration& asciiPictures()
{
    static const RowListDeclaration declared = [] {
        RowListDeclaration list = listOf("Ascii", Fewest::None);
        list.list = "lvwAscii";
        list.toolbar = "tlbFiles";
        list.explanation = "Each row is a picture that users can show by command or right click.";
        list.columns = {"Filename", "Display Name", "Right Click Menu"};
        list.menu = "mnuFirst";
        list.dialog.form = EditForm::ThreeFields;
        list.dialog.labels = list.columns;
        list.load = loadIndex;
        list.save = saveIndex;
        return list;
    }();
    return declared;
}

FunctionDeclaration asciiFunction()
{
    return {.nodes = {{"UserActions~Ascii",
                       "Ascii",
                       {{{"frmUserActionsAscii", "User Actions ~ Ascii", {9000, 7500}},
                         {DeclaredSettings{asciiSettings},
                          listPart(asciiPictures, ListPartKind::AsciiPictures, std::string(asciiFolder))}}}}},
            .folders = {R"(UserActions\Ascii)", std::string(asciiFolder)},
            .build = {RebuiltSettings{asciiSettings},
                      EmptyTable{std::string(indexPath), std::string(indexTable)}}};
}

} // namespace quillfen
