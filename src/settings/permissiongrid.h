#pragma once

#include "settings/profiles.h"
#include "settings/tablefile.h"

#include <functional>
#include <string>
#include <vector>

namespace quillfen {

/// One command of a grid, with the file and table that hold who may apply it to whom.
struct GridCommand
{
    std::string word;
    std::string path;
    std::string table;
};

/// Who may do what to whom: a square of profiles per command, two levels deep in each command's file.
struct PermissionGrid
{
    std::vector<GridCommand> commands;
    std::size_t firstProfile = 0; ///< of the profile list's rows: 1 leaves "Unregistered" out
};

/// One cell: command and profiles by their places, the profiles' counted in the profile list.
struct PermissionCell
{
    std::size_t command;
    std::size_t by;
    std::size_t on;
    bool allowed;
};

/// All cells by command, acting profile and target profile, in that order. A cell is allowed when its value
/// is the number 1. Each file is read once.
std::vector<PermissionCell> loadGrid(const PermissionGrid& grid, const SettingsFiles& files,
                                     const HubProfiles& profiles);

/// Where the cells of a grid's list come from and go to. A grid of one value per command and profile has the
/// same profile on both sides.
struct GridSource
{
    std::vector<std::string> commands;

    /// Targets besides the profiles, in each acting profile's rows behind them; a cell's `on` counts on
    /// there.
    std::vector<std::string> named{};

    std::function<std::vector<PermissionCell>(const SettingsFiles&, const HubProfiles&)> load;

    /// Throws StoreError.
    std::function<void(const std::vector<PermissionCell>&, const SettingsFiles&, const HubProfiles&)> save;
};

GridSource sourceOf(const PermissionGrid& grid);

/// Writes every command's file from the cells, in the grid's order. Throws StoreError.
void saveGrid(const PermissionGrid& grid, const std::vector<PermissionCell>& cells,
              const SettingsFiles& files, const HubProfiles& profiles);

/// The rebuild of one command's file: each value that it holds, and 0 for a missing one. Throws StoreError.
void rebuildGridFile(const GridCommand& command, std::size_t firstProfile, const SettingsFiles& files,
                     const HubProfiles& profiles);

} // namespace quillfen
