#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace quillfen {

class HubProfiles;
class SettingsFiles;
class TableIndex;

/// One setting of a table file: its key there, its control on the form, its default and how it is written.
struct Setting
{
    enum class Kind
    {
        Flag,     ///< 0 or 1, bare; a check box
        Number,   ///< an integer, bare; a number box whose arrows keep the range
        Text,     ///< quoted; a text box
        Entry,    ///< quoted; a combo box with entries to pick, and any other text
        Options,  ///< an integer, bare: which of the entries is chosen, counted from 0; an option group
        Profiles, ///< a nested table of one flag per hub profile; a check list
        Flags,    ///< a nested table of a flag per entry, its key a `b` and the entry; a check list
        Profile,  ///< a profile key, bare; a combo box of the hub's profiles without "Unregistered"
        Letter,   ///< quoted, the first letter of an entry; a combo box with the entries to pick
        Texts,    ///< a nested table of one quoted text per entry, which is its key; a control of the form's
        Rows,     ///< a nested table whose rows, the entries, nothing changes; no control
    };

    Kind kind;
    std::string key;
    std::string control;
    std::string label;
    std::string standard{}; ///< the default, as text
    int minimum = 0;
    int maximum = 0;
    std::vector<std::string> entries{};
    int firstOption = 0;     ///< the place of an option group's first button in its control array
    int limit = 0;           ///< the most characters that a text box takes; 0 for no limit
    bool onlyArrows = false; ///< a number that is changed by its arrows and not typed
    int step = 1;            ///< by how much a number's arrows change it

    std::string unit{}; ///< behind a field, "Days"
    std::string toolTip{};
    std::string column{}; ///< a check list's heading; empty for none
    std::string frame{};  ///< the caption of a frame around a flag; neighbours of the same one share it
    std::string nest{};   ///< the nested table that it stands in; neighbours of the same one share it
    std::optional<std::string> rebuildStandard{}; ///< the default that a rebuild writes, where it is another
    bool resets = false;                          ///< a rebuild writes the default whatever the file holds
    bool keptByRestore = false;                   ///< RESTORE leaves the control as it is

    /// What a load shows for a stored text, where it isn't the text itself.
    std::function<std::string(const std::string& stored)> shown{};

    std::size_t firstProfile = 0; ///< the first row of the profiles: 1 leaves "Unregistered" out
    bool saved = true;            ///< false: only the rebuild writes it; the form has no control for it
    bool idle = false;            ///< a number that is shown and neither read nor written

    std::optional<std::string> constant{};     ///< what each save writes; there is no control
    std::string keyInSave{};                   ///< the key as a save writes it, where it is another
    std::vector<std::string> standards{};      ///< the default of each of the entries' texts
    std::vector<std::string> rebuildEntries{}; ///< the rows that a rebuild writes, where they are others
};

Setting flag(std::string key, std::string control, std::string label, std::string standard);
Setting number(std::string key, std::string control, std::string label, std::string standard, int minimum,
               int maximum);
Setting text(std::string key, std::string control, std::string label, std::string standard);
Setting entry(std::string key, std::string control, std::string label, std::string standard,
              std::vector<std::string> entries);

/// The control is the array's name, "optOption": its buttons are counted from firstOption on.
Setting options(std::string key, std::string control, std::string label, std::string standard,
                int firstOption, std::vector<std::string> entries);

Setting profileFlags(std::string key, std::string control, std::string label);

Setting namedFlags(std::string key, std::string control, std::string label, std::vector<std::string> entries);

/// A key of no profile shows as no choice and is kept; no key shows as the hub's first profile.
Setting profileKey(std::string key, std::string control, std::string label);

/// The default is the letter. A letter of no entry shows as no choice.
Setting letter(std::string key, std::string control, std::string label, std::string standard,
               std::vector<std::string> entries);

/// Profile flags without "Unregistered": the first row is the hub's first profile, 0.
Setting hubProfileFlags(std::string key, std::string control, std::string label);

/// The standards are the entries' own, in their order.
Setting namedTexts(std::string key, std::string control, std::string label, std::vector<std::string> entries,
                   std::vector<std::string> standards);

/// Rows as they stand in the file, without indent and comma.
Setting constantRows(std::string key, std::vector<std::string> rows);

/// A text that the form's user can't change: the rebuild keeps it, each save writes the constant.
Setting constantText(std::string key, std::string constant);

/// Whether the kit or the form makes a control for it.
bool hasControl(const Setting& setting);

/// The same setting without a control: the rebuild keeps it, each save of the form drops it.
Setting notSaved(Setting setting);

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

/// The name of one entry's flag among the values.
std::string flagRow(const Setting& setting, const std::string& entry);

/// The name of one entry's text among the values.
std::string textRow(const Setting& setting, const std::string& entry);

/// The name of one profile's flag among the values; the row is counted from 0, "Unregistered" first.
std::string profileRow(const Setting& setting, std::size_t row);

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

/// The rows alone, for a file that has more between its opening line and its brace.
std::string composedRows(const TableFile& file, const SettingValues& values, RowOrder order,
                         const HubProfiles& profiles);

/// The build routine of a declared file: rebuilt() values, in the rebuild's order, written. Throws
/// StoreError.
void rebuildTableFile(const TableFile& file, const SettingsFiles& files, const HubProfiles& profiles);

/// Writes what a form holds, in the save's order. Throws StoreError.
void saveTableFile(const TableFile& file, const SettingValues& values, const SettingsFiles& files,
                   const HubProfiles& profiles);

/// What is wrong with a declaration: a key named twice, a rebuild order that misses a key. Empty if nothing
/// is.
std::vector<std::string> faults(const TableFile& file);

} // namespace quillfen
