#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillfen {

/// What settings are made of, and the words that declare them.
namespace setting {

/// What few flags have.
struct FlagDetails
{
    const char* frame = "";       ///< the caption of a frame around it; neighbours of the same one share it
    bool tickedAboveZero = false; ///< any number above 0 ticks it, and not only a 1
};

/// 0 or 1, bare; a check box.
struct Flag
{
    bool defaultValue;
    FlagDetails details{};
};

/// What few numbers have.
struct NumberDetails
{
    int step = 1;              ///< by how much the arrows change it
    const char* unit = "";     ///< behind the box, "Days"
    bool onlyArrows = false;   ///< changed by its arrows and not typed
    bool savedAsTyped = false; ///< an emptied box is saved as nothing, and not as the 0 that it loads as
    bool clockTime = false;    ///< hours and minutes, HHMM, though its arrows count on as with any number
};

inline constexpr NumberDetails asTyped = {.savedAsTyped = true}; ///< of a number that has only this one

/// An integer, bare; a number box whose arrows keep the range.
struct Number
{
    int defaultValue;
    int minimum;
    int maximum;
    NumberDetails details{};
};

/// Quoted; a text box.
struct Text
{
    std::string defaultValue;
    int limit = 0; ///< the most characters that the box takes; 0 for no limit
};

/// Quoted; a combo box with entries to pick, and any other text.
struct Entry
{
    std::string defaultValue;
    std::vector<std::string> entries;
};

/// An integer, bare: which of the captions is chosen, counted from 0; an option group. The control is the
/// array's name, "optOption".
struct Options
{
    int defaultValue;
    int firstButton; ///< the place of the group's first button in its control array
    std::vector<std::string> captions;
};

/// A nested table of one flag per hub profile, all off by default; a check list.
struct ProfileFlags
{
    std::string heading{};        ///< of the list; empty for none
    std::size_t firstProfile = 0; ///< the first row of the profiles: 1 leaves "Unregistered" out
};

/// A nested table of a flag per name, its key a `b` and the name, all off by default; a check list.
struct NamedFlags
{
    std::vector<std::string> names;
};

/// A profile key, bare; a combo box of the hub's profiles without "Unregistered". The default is the hub's
/// first profile, which also shows where there is no key; one of no profile shows as no choice and is kept.
struct ProfileKey
{
};

/// Quoted, the first letter of a word; a combo box with the words to pick. A letter of no word shows as no
/// choice.
struct Letter
{
    std::string defaultWord;
    std::vector<std::string> words;
    std::string wordWhereNone{}; ///< what shows where the file holds no letter
};

/// The letter that a word is stored as; empty for no word.
inline std::string letterOf(std::string_view word)
{
    return std::string(word.substr(0, 1));
}

/// The kinds of settings that the kit has a control for.
using FieldKind =
    std::variant<Flag, Number, Text, Entry, Options, ProfileFlags, NamedFlags, ProfileKey, Letter>;

/// The default as the file holds it; that of each row for one with a nested table.
std::string defaultText(const FieldKind& kind);

/// Where a rebuild doesn't simply keep the file's value and fill a missing one with the default.
struct RebuildRule
{
    std::optional<std::string> defaultText{}; ///< where the file has no value
    bool resets = false;                      ///< the default, whatever the file holds
};

/// A setting with a control that the kit makes.
struct Field
{
    std::string key;
    std::string control; ///< its name
    std::string label;
    FieldKind kind;

    std::string toolTip{};
    std::string nest{};      ///< the nested table that it stands in; neighbours of the same one share it
    std::string keyInSave{}; ///< the key as a save writes it, where it is another
    RebuildRule rebuild{};
    bool keptByRestore = false;     ///< RESTORE leaves the control as it is
    std::string_view explanation{}; ///< what the setting does for the hub's users, in a sentence

    /// The same field with its explanation.
    Field explained(std::string_view sentence) const;
};

/// A text of a nested table; its key there is the name.
struct NamedText
{
    std::string name;
    std::string defaultValue;
};

/// A nested table of quoted texts, with a control that the form makes itself.
struct NamedTexts
{
    std::string key;
    std::string control;
    std::string label;
    std::vector<NamedText> texts;
    std::string_view explanation{}; ///< what they do for the hub's users, in a sentence
};

/// A nested table whose rows nothing changes. They are told as they stand in the file, without indent and
/// comma.
struct ConstantRows
{
    std::string key;
    std::vector<std::string> rows;
    std::vector<std::string> rebuiltRows{}; ///< those that a rebuild writes, where they are others
};

/// A quoted text that the form's user can't change: a rebuild keeps it, each save writes this one.
struct ConstantText
{
    std::string key;
    std::string text;
};

/// A setting that a rebuild keeps and each save of the form drops, which has no control for it.
struct RebuiltOnly
{
    std::string key;
    std::string defaultText;
    bool quoted;
};

/// A control that is shown with its default and neither read nor written.
struct Idle
{
    Field field;
};

Field flag(std::string key, std::string control, std::string label, bool defaultValue,
           FlagDetails details = {});
Field flag(std::string key, std::string control, std::string label, const char* defaultValue,
           FlagDetails details = {}) = delete; // any text would be true
Field number(std::string key, std::string control, std::string label, int defaultValue, int minimum,
             int maximum, NumberDetails details = {});
Field text(std::string key, std::string control, std::string label, std::string defaultValue, int limit = 0);
Field entry(std::string key, std::string control, std::string label, std::string defaultValue,
            std::vector<std::string> entries);
Field options(std::string key, std::string control, std::string label, int defaultValue, int firstButton,
              std::vector<std::string> captions);
Field profileFlags(std::string key, std::string control, std::string label, std::string heading = {});

/// Profile flags without "Unregistered".
Field hubProfileFlags(std::string key, std::string control, std::string label, std::string heading = {});

/// The profiles for which a function is on, and those that it spares, under the names that most functions
/// have for them.
Field enabledProfiles();
Field exemptProfiles();

Field namedFlags(std::string key, std::string control, std::string label, std::vector<std::string> names);
Field profileKey(std::string key, std::string control, std::string label);
Field letter(std::string key, std::string control, std::string label, std::string defaultWord,
             std::vector<std::string> words, std::string wordWhereNone = {});

/// The same field, left as it is by RESTORE.
Field notRestored(Field field);

RebuiltOnly rebuiltFlag(std::string key, bool defaultValue);
RebuiltOnly rebuiltText(std::string key, std::string defaultValue);

} // namespace setting

/// One setting of a table file. Its kind says how it is written and who makes its control: the kit that of a
/// field and an idle one, the form that of named texts, and nobody any of the others.
using Setting = std::variant<setting::Field, setting::NamedTexts, setting::ConstantRows,
                             setting::ConstantText, setting::RebuiltOnly, setting::Idle>;

/// The setting's key; that of an idle one stands in no file.
const std::string& keyOf(const Setting& setting);

/// The nested table that a setting shares with its neighbours; empty for none.
std::string_view nestOf(const Setting& setting);

} // namespace quillfen
