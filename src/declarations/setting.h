#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillfen {

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
    int firstOption = 0;       ///< the place of an option group's first button in its control array
    int limit = 0;             ///< the most characters that a text box takes; 0 for no limit
    bool onlyArrows = false;   ///< a number that is changed by its arrows and not typed
    int step = 1;              ///< by how much a number's arrows change it
    bool savedAsTyped = false; ///< an emptied number is saved as nothing, and not as the 0 that it loads as

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
    bool idle = false;            ///< a control that is shown and neither read nor written

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

/// The same number, saved as it is typed also when nothing is.
Setting savedAsTyped(Setting setting);

/// The same setting, left as it is by RESTORE.
Setting notRestored(Setting setting);

} // namespace quillfen
