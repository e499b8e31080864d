#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillfen {

class HubProfiles;
class SettingsFiles;
struct ListFile;
struct ListRow;
struct NestedListsFile;

/// A row of a list view: its columns' texts, and its tick where the list has ticks.
struct CellRow
{
    std::vector<std::string> cells;
    bool checked = false;
    bool bold = false; ///< one that stands apart from the others

    bool operator==(const CellRow&) const = default;
};

/// The dialogs that edit a row, by their inputs.
enum class EditForm
{
    OneFields,
    TwoFields,
    ThreeFields,
    FourFields,
    OneUpDown,
    TwoUpDowns,
    TextCombo,
    TwoTextCombo,
    OneTextTwoCombo,
    UpDownCombo,
    ThreeCombos,
    FourCombos,
};

/// The inputs of a dialog in field order: T a text, N a number with up-down, C a combo box.
std::string_view inputsOf(EditForm form);

/// How rows are added and edited. A mode tells which fields are required and whether a dialog offers another
/// round; without one it is what the callers of that dialog use by habit.
struct RowDialog
{
    EditForm form = EditForm::OneFields;
    std::string addTitle{}; ///< empty: rows are not added
    std::string editTitle{};
    std::vector<std::string> labels{};
    std::optional<int> addMode{};
    std::optional<int> editMode{};
    std::vector<std::vector<std::string>> entries{}; ///< for each combo box
    std::vector<std::pair<int, int>> ranges{};       ///< for each number
    std::vector<std::string> addValues{};            ///< what the fields of a new row start with
};

/// The question before a row goes, and the refusal of the last row's going.
struct DeleteWords
{
    std::string title{};
    std::string text{};
    std::string minimum{}; ///< "There must be a minimum of one ..."; empty: the list may become empty
};

/// Why a row is not taken, as a box tells it.
struct RowRefusal
{
    std::string title;
    std::string text;
};

/// A list with its toolbar, its dialog and its words. All texts are code page bytes.
struct RowListDeclaration
{
    using Load = std::function<std::vector<CellRow>(const SettingsFiles&, const HubProfiles&)>;
    using Save = std::function<void(const SettingsFiles&, const HubProfiles&, const std::vector<CellRow>&)>;

    std::string list;       ///< lvw...
    std::string toolbar;    ///< tlb...
    std::string movement{}; ///< the toolbar that moves rows, tlb...; empty: they keep their places
    std::vector<std::string> toolTips{}; ///< of NEW, DELETE and EDIT, where they tell more than those
    std::string label{};                 ///< above the list; may be empty
    std::string remark{};                ///< below the list; may be empty
    std::string_view explanation{};      ///< what its rows do for the hub's users, in a sentence
    std::vector<std::string> columns{};
    int hiddenColumns = 0; ///< how many of the last ones don't show
    bool ticks = false;
    std::string menu{}; ///< the borrowed right-click menu, mnu...
    RowDialog dialog{};
    DeleteWords deletion{};
    bool selectsFirst = false; ///< after a deletion the first row is selected
    Load load{};
    Save save{}; ///< throws StoreError

    /// The rows that RESTORE shows; without it the list is left alone.
    std::function<std::vector<CellRow>(const HubProfiles&)> restored{};

    /// The dialog's fields from a row and back; without them the fields are the first cells.
    std::function<std::vector<std::string>(const CellRow&)> fieldsOf{};
    std::function<void(const std::vector<std::string>&, CellRow&)> take{};

    /// What stands in the edit dialog's title and labels for a row; without them the dialog's own.
    std::function<std::string(const CellRow&)> editTitleOf{};
    std::function<std::vector<std::string>(const CellRow&)> labelsOf{};

    /// Why a row is not taken; `before` is the row that was edited, null where one is added.
    std::function<std::optional<RowRefusal>(const std::vector<CellRow>& rows, const CellRow& row,
                                            const CellRow* before)>
        refusal{};
    bool asksAgain = false; ///< the dialog of a row that was refused comes up again

    /// The dialog that edits a row, where rows differ in theirs.
    std::function<RowDialog(const CellRow&)> dialogOf{};
};

/// Lists side by side that are saved together.
struct RowListGroup
{
    using Save = std::function<void(const SettingsFiles&, const std::vector<std::vector<CellRow>>&)>;

    std::vector<RowListDeclaration> lists; ///< without savings of their own
    Save save;                             ///< takes the rows of each list; throws StoreError
};

/// Files of rows that a list names, one of which may be open: its rows stand in a second list. All texts are
/// code page bytes.
struct ListedFiles
{
    /// The list of the names. Its dialog's title and label are those of the box that asks for a new name; the
    /// question of its deletion ends with the name.
    RowListDeclaration names;
    RowListDeclaration rows;

    std::string chooseTitle;   ///< of the dialog that chooses a file which is there
    std::string folder;        ///< where that begins, a told path
    std::string filter;        ///< as that shows it
    std::string patterns;      ///< what it means: "*.lst"
    std::string refusesAdding; ///< the title of the box that refuses a chosen file
};

/// What a list reader gave, as a list view holds it: text, second column and tick.
std::vector<CellRow> cellRows(std::vector<ListRow> list);

/// The loading and saving of lists that one file holds in nested tables.
RowListDeclaration::Load loadOf(const NestedListsFile& file, std::size_t list);
RowListGroup::Save saveOf(const NestedListsFile& file);

/// The loading and saving of a list that is one whole file.
RowListDeclaration::Load loadOf(const ListFile& file);
RowListDeclaration::Save saveOf(const ListFile& file);

/// How few rows a list may come to have.
enum class Fewest
{
    None,
    One
};

/// A list whose rows dialogs and boxes call by one noun: "Add <noun>", "Edit <noun>", "Delete <noun>?". The
/// dialog has one field, labelled by it too.
RowListDeclaration listOf(const std::string& noun, Fewest fewest);

/// The words around a deletion where lists call a row by several nouns: in the title, in the question and,
/// where one row must stay, in the refusal.
DeleteWords deletionOf(const std::string& titled, const std::string& asked, const std::string& least = {});

/// RESTORE empties the list.
std::vector<CellRow> noRows(const HubProfiles& profiles);

} // namespace quillfen
