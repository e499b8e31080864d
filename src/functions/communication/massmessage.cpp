#include "functions/communication/massmessage.h"

#include "settings/lines.h"
#include "settings/tablewriter.h"

namespace quillfen {
namespace {

/// As the rebuild names the targets; the form knows the last one no more.
constexpr const char* rebuiltTargets[] = {"Banner", "All", "Passive", "Operator"};

std::string targetKey(std::size_t target, const HubProfiles& profiles)
{
    return target < profiles.count() ? HubProfiles::key(target)
                                     : massMessageTargets().at(target - profiles.count());
}

void rebuildMassMessage(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto index = files.index(massMessageSettings().path);
    auto keys = profiles.keys();
    keys.insert(keys.end(), std::begin(rebuiltTargets), std::end(rebuiltTargets));
    TableCells cells(index, keys);
    TableWriter table(massMessageSettings().table);
    writeRows(table, massMessageSettings(), rebuilt(massMessageSettings(), index, profiles),
              RowOrder::Rebuild, profiles);
    for (std::size_t by = 0; by < profiles.count(); ++by) {
        table.open(bracketed(keys[by]));
        cells.enter(keys[by]);
        for (std::size_t on = 0; on < keys.size(); ++on) {
            const auto stored = cells.at(on);
            const auto kept = stored.empty() ? std::string_view("0") : stored;
            table.row(on < profiles.count() ? bracketed(keys[on]) : keys[on], kept);
        }
        table.close();
    }
    files.WriteSettingsFile(massMessageSettings().path, table.closed());
}

std::vector<PlacedText> placedMassMessage(const SettingsFiles& files, const HubProfiles& profiles)
{
    const std::string passive(passiveMessageFile);
    std::vector<PlacedText> texts = {
        {passive, "lvwPermissions", -1, "Passive File", files.ReadTextFile(passive)}};
    const auto targets = static_cast<int>(profiles.count() + massMessageTargets().size());
    for (std::size_t by = 0; by < profiles.count(); ++by)
        texts.push_back({massMessageSettings().path, "lvwPermissions", static_cast<int>(by) * targets,
                         "By Profile", profiles.names()[by]});
    return texts;
}

} // namespace

const TableFile& massMessageSettings()
{
    static const TableFile file = {
        R"(Communication\MassMessage\MassMessageSettings.tbl)",
        "tMassMessageSettings",
        {
            setting::profileFlags("tEnabledPassiveProfiles", "lvwEnabledProfiles", "Immune Passive Profiles")
                .explained("Spares the ticked profiles the passive mass messages."),
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
    TableWriter table(massMessageSettings().table);
    writeRows(table, massMessageSettings(), message.immune, RowOrder::Save, profiles);
    const std::size_t last = profiles.count() + massMessageTargets().size() - 1;
    for (const PermissionCell& cell : message.cells) {
        if (cell.on == 0)
            table.open(bracketed(HubProfiles::key(cell.by)));
        // The form puts the named targets in quotes and leaves "Operator" out; the rebuild does neither.
        const std::string target = targetKey(cell.on, profiles);
        table.row(bracketed(cell.on < profiles.count() ? target : inQuotes(target)),
                  cell.allowed ? "1" : "0");
        if (cell.on == last)
            table.close();
    }
    files.WriteSettingsFile(massMessageSettings().path, table.closed());
}

FunctionDeclaration massMessageFunction()
{
    const FormDescription form = {.name = "frmCommunicationMassMessage",
                                  .caption = "Communication ~ MassMessage",
                                  .hasRestore = false,
                                  .reloadsAfterSave = true};
    const OwnPart part = {
        .kind = OwnPartKind::MassMessage,
        .files = [] { return std::vector{massMessageSettings()}; },
        .explanations =
            {{"lvwPermissions",
              "Lets users of the acting profile send mass messages to users of the target profile."}},
        .texts = placedMassMessage,
        .paths = {std::string(passiveMessageFile)}};
    return {
        .nodes = {{"Communication~MassMessage", "Mass Message", {{form, {part}}}}},
        .folders = {R"(Communication\MassMessage)"},
        .build = {rebuildMassMessage, EmptyTable{R"(Communication\MassMessage\MassMessagePassiveImmune.tbl)",
                                                 "tMassMessagePassiveImmune"}}};
}

} // namespace quillfen
