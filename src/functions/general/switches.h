#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

class HubProfiles;
class SettingsFiles;
struct ListRow;

/// A function of the hub script that can be switched on and off, and whose right clicks can be.
struct SwitchedFunction
{
    std::string_view name;
    bool on; ///< as a rebuild writes it
    std::string_view help;
};

/// All of them, in the order of both files.
std::span<const SwitchedFunction> switchedFunctions();

/// The help of the function of that name; empty for a name that isn't ours.
std::string_view switchHelp(std::string_view name);

/// One of the two files of switches.
struct SwitchFile
{
    std::string_view path;
    std::string_view table;
};

inline constexpr SwitchFile switchesFile = {R"(General\Globals\Switches.tbl)", "tSwitches"};
inline constexpr SwitchFile enabledRightClicksFile = {R"(General\Globals\EnabledRightClicks.tbl)",
                                                      "tEnabledRightClicks"};

/// The rows as the form shows them: a key's leading `b` is cut. A row that was put in by hand shows like any
/// other.
std::vector<ListRow> loadSwitches(const SettingsFiles& files, const SwitchFile& file);

/// Writes the rows with their `b`. Throws StoreError.
void saveSwitches(const SettingsFiles& files, const SwitchFile& file, const std::vector<ListRow>& rows);

void buildSwitches(const SettingsFiles& files, const HubProfiles& profiles);
void buildEnabledRightClicks(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
