#include "functions/communication/motd.h"

#include "settings/lines.h"
#include "settings/profiles.h"
#include "settings/tablewriter.h"

namespace quillfen {
namespace {

constexpr std::string_view motdFile = R"(Communication\MOTD\MOTDSettings.tbl)";

void writeFlags(TableWriter& table, std::string_view key, std::string_view bUse, std::string_view bInMain)
{
    table.open(key).row("bUse", bUse).row("bInMain", bInMain).close();
}

std::string orZero(const std::string& value)
{
    return value.empty() ? "0" : value;
}

void rebuildMotds(const SettingsFiles& files, const HubProfiles& profiles)
{
    // The flags for everybody are looked up in the mass message's file, which this folder doesn't hold: they
    // go back to 0 at every rebuild, while each profile's stay.
    const auto allIndex = files.subIndex(R"(Communication\MOTD\MassMessageSettings.tbl)");
    const auto index = files.subIndex(motdFile);
    TableWriter table("tMOTDSettings");
    writeFlags(table, "tAll", orZero(allIndex.value("tAll", "bUse")),
               orZero(allIndex.value("tAll", "bInMain")));
    table.open("tByProfile");
    for (const std::string& key : profiles.keys())
        writeFlags(table, bracketed(key), orZero(index.value(key, "bUse")),
                   orZero(index.value(key, "bInMain")));
    table.close();
    files.WriteSettingsFile(motdFile, table.closed());
    for (std::size_t row = 0; row <= profiles.count(); ++row)
        writeIfMissing(files, motdTextFile(row, profiles), "");
}

std::vector<PlacedText> placedMotds(const SettingsFiles& files, const HubProfiles& profiles)
{
    std::vector<PlacedText> texts;
    for (const CellRow& row : loadMotds(files, profiles)) {
        const std::size_t place = texts.size() / 2;
        const auto add = [&](const std::string& file, const std::string& text) {
            texts.push_back({file, "lvwMOTD", static_cast<int>(place), "Profile Active", text});
        };
        const std::string file = motdTextFile(place, profiles);
        add(std::string(motdFile), row.cells[0] + " | " + row.cells[1]);
        add(file, files.ReadTextFile(file));
    }
    return texts;
}

} // namespace

std::vector<CellRow> loadMotds(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto index = files.subIndex(motdFile);
    const auto rowOf = [&index](const std::string& name, const std::string& table) {
        const bool inMain = isOne(index.value(table, "bInMain"));
        return CellRow{{name, inMain ? sentToMain : sentByPm}, isOne(index.value(table, "bUse"))};
    };
    std::vector<CellRow> rows;
    for (std::size_t row = 0; row < profiles.count(); ++row)
        rows.push_back(rowOf(profiles.names()[row], HubProfiles::key(row)));
    rows.push_back(rowOf("All", "tAll"));
    rows.back().bold = true;
    return rows;
}

void saveMotds(const SettingsFiles& files, const std::vector<CellRow>& rows)
{
    TableWriter table("tMOTDSettings");
    const auto writeRow = [&table](const std::string& key, const CellRow& row) {
        writeFlags(table, key, row.checked ? "1" : "0", row.cells.at(1) == sentToMain ? "1" : "0");
    };
    table.open("tByProfile");
    for (std::size_t row = 0; row + 1 < rows.size(); ++row)
        writeRow(bracketed(HubProfiles::key(row)), rows[row]);
    table.close();
    writeRow("tAll", rows.back());
    files.WriteSettingsFile(motdFile, table.closed());
}

std::string motdTextFile(std::size_t row, const HubProfiles& profiles)
{
    return R"(Communication\MOTD\MOTDs\)" + (row < profiles.count() ? HubProfiles::key(row) : "all") + ".asc";
}

FunctionDeclaration motdFunction()
{
    const FormDescription form = {
        .name = "frmCommunicationMOTD", .caption = "Communication ~ MOTD", .hasRestore = false};
    const OwnPart part = {
        .kind = OwnPartKind::MessageOfTheDay,
        .explanations =
            {{"lvwMOTD",
              "Each ticked row is a profile whose users get its message on login, in main chat or by private "
              "message; the last is for everybody."}},
        .texts = placedMotds,
        .paths = {std::string(motdFile), R"(Communication\MOTD\MOTDs\)"}};
    return {.nodes = {{"Communication~MOTD", "Message Of The Day", {{form, {part}}}}},
            .folders = {R"(Communication\MOTD)", R"(Communication\MOTD\MOTDs)"},
            .build = {rebuildMotds}};
}

} // namespace quillfen
