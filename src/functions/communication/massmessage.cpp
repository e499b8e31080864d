#include "functions/communication/massmessage.h"

#include "settings/lines.h"
#include "settings/listfile.h"

namespace quillfen {
namespace {

/// As the rebuild names the targets; the form knows the last one no more.
constexpr const char* rebuiltTargets[] = {"Banner", "All", "Passive", "Operator"};

std::string opening()
{
    return massMessageSettings().table + " = {\r\n";
}

std::string cellText(std::string_view key, std::string_view value)
{
    std::string text = "\t\t";
    return text.append(key).append(" = ").append(value).append(",\r\n");
}

std::string profileCell(std::size_t target, std::string_view value)
{
    return cellText("[" + HubProfiles::key(target) + "]", value);
}

std::string blockOpening(std::size_t by)
{
    return "\t[" + HubProfiles::key(by) + "] = {\r\n";
}

std::string targetKey(std::size_t target, const HubProfiles& profiles)
{
    return target < profiles.count() ? HubProfiles::key(target)
                                     : massMessageTargets().at(target - profiles.count());
}

} // namespace

const TableFile& massMessageSettings()
{
    static const TableFile file = {
        R"(Communication\MassMessage\MassMessageSettings.tbl)",
        "tMassMessageSettings",
        {
            profileFlags("tEnabledPassiveProfiles", "lvwEnabledProfiles", "Immune Passive Profiles"),
        },
    };
    return file;
}

const std::vector<std::string>& massMessageTargets()
{
    static const std::vector<std::string> targets = {"Passive", "Banner", "All"};
    return targets;
}

MassMessage loadMassMessage(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto index = files.index(massMessageSettings().path);
    MassMessage message{loaded(massMessageSettings(), index, profiles), {}};
    const std::size_t targets = profiles.count() + massMessageTargets().size();
    for (std::size_t by = 0; by < profiles.count(); ++by) {
        for (std::size_t on = 0; on < targets; ++on) {
            const auto value = index.value(targetKey(on, profiles), HubProfiles::key(by));
            message.cells.push_back({0, by, on, isOne(value)});
        }
    }
    return message;
}

void saveMassMessage(const MassMessage& message, const SettingsFiles& files, const HubProfiles& profiles)
{
    std::string text =
        opening() + composedRows(massMessageSettings(), message.immune, RowOrder::Save, profiles);
    const std::size_t last = profiles.count() + massMessageTargets().size() - 1;
    for (const PermissionCell& cell : message.cells) {
        const std::string value = cell.allowed ? "1" : "0";
        if (cell.on == 0)
            text += blockOpening(cell.by);
        // The form puts the named targets in quotes and leaves "Operator" out; the rebuild does neither.
        text += cell.on < profiles.count() ? profileCell(cell.on, value)
                                           : cellText("[\"" + targetKey(cell.on, profiles) + "\"]", value);
        if (cell.on == last)
            text += "\t},\r\n";
    }
    files.WriteSettingsFile(massMessageSettings().path, text + "}");
}

void buildMassMessage(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto index = files.index(massMessageSettings().path);
    auto keys = profiles.keys();
    keys.insert(keys.end(), std::begin(rebuiltTargets), std::end(rebuiltTargets));
    TableCells cells(index, keys);
    std::string text =
        opening() + composedRows(massMessageSettings(), rebuilt(massMessageSettings(), index, profiles),
                                 RowOrder::Rebuild, profiles);
    for (std::size_t by = 0; by < profiles.count(); ++by) {
        text += blockOpening(by);
        cells.enter(keys[by]);
        for (std::size_t on = 0; on < keys.size(); ++on) {
            const auto stored = cells.at(on);
            const auto kept = stored.empty() ? std::string_view("0") : stored;
            text += on < profiles.count() ? profileCell(on, kept) : cellText(keys[on], kept);
        }
        text += "\t},\r\n";
    }
    files.WriteSettingsFile(massMessageSettings().path, text + "}");
    writeEmptyTableIfMissing(files, R"(Communication\MassMessage\MassMessagePassiveImmune.tbl)",
                             "tMassMessagePassiveImmune");
}

} // namespace quillfen
