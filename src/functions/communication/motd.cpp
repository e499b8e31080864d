#include "functions/communication/motd.h"

#include "settings/lines.h"
#include "settings/listfile.h"
#include "settings/profiles.h"

namespace quillfen {
namespace {

constexpr std::string_view motdFile = R"(Communication\MOTD\MOTDSettings.tbl)";

std::string flagsText(const std::string& indent, const std::string& bUse, const std::string& bInMain)
{
    return indent + "bUse = " + bUse + ",\r\n" + indent + "bInMain = " + bInMain + ",\r\n";
}

std::string profileText(std::size_t row, const std::string& bUse, const std::string& bInMain)
{
    return "\t\t[" + HubProfiles::key(row) + "] = {\r\n" + flagsText("\t\t\t", bUse, bInMain) + "\t\t},\r\n";
}

std::string allText(const std::string& bUse, const std::string& bInMain)
{
    return "\ttAll = {\r\n" + flagsText("\t\t", bUse, bInMain) + "\t},\r\n";
}

std::string orZero(const std::string& value)
{
    return value.empty() ? "0" : value;
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
    const auto bUse = [](const CellRow& row) { return std::string(row.checked ? "1" : "0"); };
    const auto bInMain = [](const CellRow& row) {
        return std::string(row.cells.at(1) == sentToMain ? "1" : "0");
    };
    std::string text = "tMOTDSettings = {\r\n\ttByProfile = {\r\n";
    for (std::size_t row = 0; row + 1 < rows.size(); ++row)
        text += profileText(row, bUse(rows[row]), bInMain(rows[row]));
    text += "\t},\r\n" + allText(bUse(rows.back()), bInMain(rows.back()));
    files.WriteSettingsFile(motdFile, text + "}");
}

std::string motdTextFile(std::size_t row, const HubProfiles& profiles)
{
    return R"(Communication\MOTD\MOTDs\)" + (row < profiles.count() ? HubProfiles::key(row) : "all") + ".asc";
}

void buildMotds(const SettingsFiles& files, const HubProfiles& profiles)
{
    // The flags for everybody are looked up in the mass message's file, which this folder doesn't hold: they
    // go back to 0 at every rebuild. The hub script's owners count on it.
    const auto allIndex = files.subIndex(R"(Communication\MOTD\MassMessageSettings.tbl)");
    const auto index = files.subIndex(motdFile);
    std::string text =
        "tMOTDSettings = {\r\n" +
        allText(orZero(allIndex.value("tAll", "bUse")), orZero(allIndex.value("tAll", "bInMain"))) +
        "\ttByProfile = {\r\n";
    for (std::size_t row = 0; row < profiles.count(); ++row) {
        const std::string table = HubProfiles::key(row);
        text += profileText(row, orZero(index.value(table, "bUse")), orZero(index.value(table, "bInMain")));
    }
    files.WriteSettingsFile(motdFile, text + "\t},\r\n}");
    for (std::size_t row = 0; row <= profiles.count(); ++row)
        writeIfMissing(files, motdTextFile(row, profiles), "");
}

} // namespace quillfen
