#pragma once

#include "declarations/setting.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace quillfen {

class HubProfiles;
class SettingsFiles;
class TableIndex;
class TableWriter;

/// A settings file: one table, its settings in the order of the form's save, and the order of the rebuild
/// where it is another.
struct TableFile
{
    std::string path;
    std::string table;
    std::vector<Setting> settings;
    std::vector<std::string> rebuildOrder{};
    bool makesFolder = false; ///< a save makes the folder that no rebuild makes
};

/// The texts of a file's settings by key; the row of a profile stands under profileRow(), that
/// of a flag under flagRow(), that of a named text under textRow().
using SettingValues = std::unordered_map<std::string, std::string>;

/// The name among the values of the flag that the setting with this key has for a name.
std::string flagRow(const std::string& key, const std::string& name);

/// The name among the values of one of the setting's texts.
std::string textRow(const std::string& key, const std::string& name);

/// The name among the values of one profile's flag; the row is counted from 0, "Unregistered" first.
std::string profileRow(const std::string& key, std::size_t row);

/// What the form shows of a file: each key as it stands, wherever it is; a flag of a nested table
/// is "0" when it is missing, a text of one empty.
SettingValues loaded(const TableFile& file, const TableIndex& index, const HubProfiles& profiles);

/// The defaults, as RESTORE shows them: no profile is ticked. What RESTORE leaves alone is not among them.
SettingValues restored(const TableFile& file, const HubProfiles& profiles);

/// What a rebuild writes: each value that the file's table holds, and the default of each that is missing or
/// empty.
SettingValues rebuilt(const TableFile& file, const TableIndex& index, const HubProfiles& profiles);

enum class RowOrder
{
    Save,
    Rebuild
};

/// The text of the whole file, without the writer's last line end. Nothing is escaped.
std::string composed(const TableFile& file, const SettingValues& values, RowOrder order,
                     const HubProfiles& profiles);

/// Writes the rows alone, for a file that has more between its opening line and its brace.
void writeRows(TableWriter& table, const TableFile& file, const SettingValues& values, RowOrder order,
               const HubProfiles& profiles);

/// The build routine of a declared file: rebuilt() values, in the rebuild's order, written. Throws
/// StoreError.
void rebuildTableFile(const TableFile& file, const SettingsFiles& files, const HubProfiles& profiles);

/// Writes what a form holds, in the save's order. Throws StoreError.
void saveTableFile(const TableFile& file, const SettingValues& values, const SettingsFiles& files,
                   const HubProfiles& profiles);

} // namespace quillfen
