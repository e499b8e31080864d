#include "settings/permissiongrid.h"

#include "settings/lines.h"
#include "settings/tablewriter.h"

#include <algorithm>

namespace quillfen {
namespace {

/// The text of one command's file; `valueOf(by, on)` gives the cells' values row by row, both counted in the
/// keys.
template <typename ValueOf>
std::string composed(const GridCommand& command, const std::vector<std::string>& keys, const ValueOf& valueOf)
{
    constexpr std::size_t rowSize = 16; // about the bytes of a row
    std::vector<std::string> bracketedKeys(keys.size());
    std::transform(keys.begin(), keys.end(), bracketedKeys.begin(), bracketed);
    TableWriter table(command.table);
    table.reserve((keys.size() + 2) * (keys.size() + 2) * rowSize);
    for (std::size_t by = 0; by < keys.size(); ++by) {
        table.open(bracketedKeys[by]);
        for (std::size_t on = 0; on < keys.size(); ++on)
            table.row(bracketedKeys[on], valueOf(by, on));
        table.close();
    }
    return table.closed();
}

} // namespace

std::vector<PermissionCell> loadGrid(const PermissionGrid& grid, const SettingsFiles& files,
                                     const HubProfiles& profiles)
{
    const auto keys = profiles.keys(grid.firstProfile);
    std::vector<PermissionCell> cells;
    cells.reserve(grid.commands.size() * keys.size() * keys.size());
    for (std::size_t command = 0; command < grid.commands.size(); ++command) {
        const auto index = files.index(grid.commands[command].path);
        TableCells values(index, keys);
        for (std::size_t by = 0; by < keys.size(); ++by) {
            values.enter(keys[by]);
            for (std::size_t on = 0; on < keys.size(); ++on)
                cells.push_back(
                    {command, grid.firstProfile + by, grid.firstProfile + on, isOne(values.at(on))});
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
    const auto keys = profiles.keys(grid.firstProfile);
    auto cell = cells.begin();
    for (const GridCommand& command : grid.commands) {
        files.WriteSettingsFile(command.path,
                                composed(command, keys, [&cell](std::size_t, std::size_t) -> const char* {
                                    return (cell++)->allowed ? "1" : "0";
                                }));
    }
}

void rebuildGridFile(const GridCommand& command, std::size_t firstProfile, const SettingsFiles& files,
                     const HubProfiles& profiles)
{
    const auto keys = profiles.keys(firstProfile);
    const auto index = files.index(command.path);
    TableCells values(index, keys);
    files.WriteSettingsFile(command.path, composed(command, keys, [&](std::size_t by, std::size_t on) {
                                if (on == 0)
                                    values.enter(keys[by]);
                                const auto value = values.at(on);
                                return value.empty() ? std::string_view("0") : value;
                            }));
}

} // namespace quillfen
