#include "settings/permissiongrid.h"

#include "settings/lines.h"

namespace quillfen {
namespace {

/// The text of one command's file; `valueOf(by, on)` gives the cells' values row by row.
template <typename ValueOf>
std::string composed(const GridCommand& command, std::size_t firstProfile, const HubProfiles& profiles,
                     const ValueOf& valueOf)
{
    std::string text = command.table + " = {\r\n";
    for (std::size_t by = firstProfile; by < profiles.count(); ++by) {
        text.append("\t[").append(HubProfiles::key(by)).append("] = {\r\n");
        for (std::size_t on = firstProfile; on < profiles.count(); ++on)
            text.append("\t\t[")
                .append(HubProfiles::key(on))
                .append("] = ")
                .append(valueOf(by, on))
                .append(",\r\n");
        text.append("\t},\r\n");
    }
    return text + "}";
}

} // namespace

std::vector<PermissionCell> loadGrid(const PermissionGrid& grid, const SettingsFiles& files,
                                     const HubProfiles& profiles)
{
    std::vector<PermissionCell> cells;
    for (std::size_t command = 0; command < grid.commands.size(); ++command) {
        const auto index = files.index(grid.commands[command].path);
        for (std::size_t by = grid.firstProfile; by < profiles.count(); ++by) {
            for (std::size_t on = grid.firstProfile; on < profiles.count(); ++on) {
                const auto value = index.value(HubProfiles::key(on), HubProfiles::key(by));
                cells.push_back({command, by, on, isOne(value)});
            }
        }
    }
    return cells;
}

GridSource sourceOf(const PermissionGrid& grid)
{
    GridSource source;
    for (const GridCommand& command : grid.commands)
        source.commands.push_back(command.word);
    source.load = [grid](const SettingsFiles& files, const HubProfiles& profiles) {
        return loadGrid(grid, files, profiles);
    };
    source.save = [grid](const std::vector<PermissionCell>& cells, const SettingsFiles& files,
                         const HubProfiles& profiles) { saveGrid(grid, cells, files, profiles); };
    return source;
}

void saveGrid(const PermissionGrid& grid, const std::vector<PermissionCell>& cells,
              const SettingsFiles& files, const HubProfiles& profiles)
{
    auto cell = cells.begin();
    for (const GridCommand& command : grid.commands) {
        files.WriteSettingsFile(command.path, composed(command, grid.firstProfile, profiles,
                                                       [&cell](std::size_t, std::size_t) -> std::string {
                                                           return (cell++)->allowed ? "1" : "0";
                                                       }));
    }
}

void rebuildGridFile(const GridCommand& command, std::size_t firstProfile, const SettingsFiles& files,
                     const HubProfiles& profiles)
{
    const auto index = files.index(command.path);
    files.WriteSettingsFile(
        command.path, composed(command, firstProfile, profiles, [&index](std::size_t by, std::size_t on) {
            const auto value = index.value(HubProfiles::key(on), HubProfiles::key(by));
            return value.empty() ? std::string("0") : value;
        }));
}

} // namespace quillfen
