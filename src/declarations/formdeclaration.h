#pragma once

#include "declarations/declaration.h"
#include "declarations/griddeclaration.h"
#include "declarations/listdeclaration.h"
#include "settings/listfile.h"
#include "settings/permissiongrid.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillfen {

// Forms as data. All texts are code page bytes. A file or list is asked for as its form opens, since a start
// has no time for those of all forms, and each part keeps its own copy of what it was given.

/// A length in each direction, 15 twips to a pixel.
struct Twips
{
    int width = 0;
    int height = 0;
};

/// What a form is called, and how it differs from the cycle that all editors share.
struct FormDescription
{
    /// What becomes of the dirty state when the user discards the changes.
    enum class AfterDiscard
    {
        Clean,
        AsItStood
    };

    /// How the parts stand to each other.
    enum class Parts
    {
        Below,
        Beside
    };

    std::string name; ///< frm...
    std::string caption;
    Twips minimumSize{}; ///< as far as the smallest main window has room for it
    AfterDiscard afterDiscard = AfterDiscard::Clean;
    bool hasRestore = true;
    bool reloadsAfterSave = false; ///< all is loaded again, as its files may hold other than it showed
    bool isLoadedOnce = false; ///< a load adds to what is shown, or would drop texts that save themselves: a
                               ///< file that changed on disk is told and not read
    Parts parts = Parts::Below;
    std::string restoreTitle = "Restore defaults?";
    std::string restoreText = "Restore to defaults?";
};

/// The parts of settings that differ from the kit's, by whose they are.
enum class SettingsPartKind
{
    Plain,
    Hangman, ///< not saved without a hint character
    Numbers, ///< with the calculations' rows among the settings
};

/// The lists that differ from the kit's, by what they hold.
enum class ListPartKind
{
    Plain,
    Words,         ///< a file that is opened, saved and closed by itself
    AsciiPictures, ///< each with its file
};

/// The parts that only their function has.
enum class OwnPartKind
{
    News,
    Portal,
    Gallows,
    TriviaQuestions,
    AsciiIntros,
    DescriptionTags,
    MessageOfTheDay,
    MassMessage,
    Languages,
    LinkOfTheWeek,
    Rules,
    SpellBook,
    NickSpellBook,
};

/// A settings file with a control for each setting.
struct DeclaredSettings
{
    std::function<TableFile()> file;
    SettingsPartKind kind = SettingsPartKind::Plain;
};

/// A list with its toolbar.
struct DeclaredList
{
    std::function<RowListDeclaration(const HubProfiles&)> list;
    ListPartKind kind = ListPartKind::Plain;
    std::string folder{}; ///< a told path: where the files lie that its rows name
};

/// Lists side by side that are saved together.
struct DeclaredLists
{
    std::function<RowListGroup()> lists;
};

/// A list of texts, each with its file in a folder.
struct DeclaredTexts
{
    std::function<RowListDeclaration()> list;
    std::string folder; ///< a told path
};

/// A permission grid.
struct DeclaredGrid
{
    std::function<GridSource()> grid;
    GridWords words{};
};

/// What differs between the lists of ticks that are one whole file.
struct TickList
{
    std::string control;
    std::string caption;
    ListFile file;                                                ///< of the form Flags
    std::function<std::string_view(std::string_view row)> help{}; ///< empty for none
    std::string label{};            ///< above the list, in place of the column's caption
    bool restoreTicks = true;       ///< RESTORE ticks every row; else it leaves them
    std::string_view explanation{}; ///< what a tick does for the hub's users, in a sentence
};

/// A list of ticks that is one whole file.
struct DeclaredTicks
{
    std::function<TickList()> ticks;
};

/// A button that opens the text editor on one file.
struct DeclaredText
{
    std::string toolbar;
    std::string caption;            ///< beside the button
    std::string path;               ///< a told one
    std::string_view explanation{}; ///< what the text does for the hub's users, in a sentence
};

/// A text that a part of a function's own shows, or that one of its files holds.
struct PlacedText
{
    std::string file;    ///< a told path; empty for one outside of the settings
    std::string control; ///< where it stands, or what leads to it
    int row = -1;        ///< of the control's list
    std::string label;
    std::string text; ///< may have several lines
};

/// What a control that nobody declares does for the hub's users, in a sentence.
struct ControlExplanation
{
    std::string control;
    std::string_view explanation; ///< empty where its label says all
    std::string file{};           ///< a told path, where one file holds it
    std::string key{};            ///< in that file
};

/// A part that only its function has. What it is made of, as far as that is declared, is told for those who
/// walk over all declarations.
struct OwnPart
{
    OwnPartKind kind;
    std::size_t which = 0; ///< of several of that kind, as their function counts them
    std::function<std::vector<TableFile>()> files{};
    std::function<std::vector<RowListDeclaration>()> lists{};
    std::vector<ControlExplanation> explanations{}; ///< of controls that are in neither

    /// What can be found in it besides those.
    std::function<std::vector<PlacedText>(const SettingsFiles&, const HubProfiles&)> texts{};

    /// The told paths of its other files; one that ends with a backslash is a folder of them.
    std::vector<std::string> paths{};
};

using PartDeclaration = std::variant<DeclaredSettings, DeclaredList, DeclaredLists, DeclaredTexts,
                                     DeclaredGrid, DeclaredTicks, DeclaredText, OwnPart>;

/// A form: what it is called and how it differs from the cycle of all editors, and its parts in their order.
struct FormDeclaration
{
    FormDescription form;
    std::vector<PartDeclaration> parts;
};

/// Every form that is built.
using FormCatalogue = std::vector<FormDeclaration>;

/// The declared settings files of a form's part.
std::vector<TableFile> settingsFilesOf(const PartDeclaration& part);

/// The declared lists of a form's part, each without what its rows lead to.
std::vector<RowListDeclaration> listsOf(const PartDeclaration& part, const HubProfiles& profiles);

/// A list that is the same at every hub.
DeclaredList listPart(std::function<RowListDeclaration()> list, ListPartKind kind = ListPartKind::Plain,
                      std::string folder = {});

/// A form of one settings file.
FormDeclaration settingsForm(const FormDescription& form, std::function<TableFile()> file);

/// A form of one list.
FormDeclaration listForm(const FormDescription& form, std::function<RowListDeclaration()> list);

/// A form of lists side by side.
FormDeclaration listsForm(const FormDescription& form, std::function<RowListGroup()> lists);

/// A form of a settings file and a list.
FormDeclaration settingsAndListForm(const FormDescription& form, std::function<TableFile()> file,
                                    std::function<RowListDeclaration()> list);

/// A form of one grid, which is loaded again after each save.
FormDeclaration gridForm(FormDescription form, std::function<GridSource()> grid, const GridWords& words);

} // namespace quillfen
