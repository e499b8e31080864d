#pragma once

#include "declarations/formdeclaration.h"

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quillfen {

class HubProfiles;
class SettingsFiles;

/// A place in the tree of functions. Its key, such as "General~Settings", is the one name by which the tree,
/// the drop-downs, the Window menu and the open-window registry know a form.
struct Node
{
    std::string key;
    std::string caption;
    std::optional<FormDeclaration> form{}; ///< what it opens
    std::string dropDown{}; ///< the caption in the top toolbar's drop-down, where it is another
    std::string above{};    ///< the key of the node above, where it isn't the key's own beginning
    bool inTree = true;     ///< false: its form is complete and waits for a node
};

// The steps of a build. Each makes or keeps files of one function. All paths are told ones.

/// Values that the file holds are kept, and the default of each that is missing or empty is written.
struct RebuiltSettings
{
    std::function<TableFile()> file;
};

/// The rebuild of one command's file of a permission grid: each value that it holds, and 0 for a missing one.
struct RebuiltGrid
{
    GridCommand command;
    std::size_t firstProfile = 0; ///< of the profile list's rows: 1 leaves "Unregistered" out
};

/// A file that is there is left as it is; else a table of no rows.
struct EmptyTable
{
    std::string path;
    std::string table;
};

/// The empty table of a list.
EmptyTable emptyTable(const ListFile& file);

/// A file that is there is left as it is; else this text, to which the writer adds a line end.
struct FirstText
{
    std::string path;
    std::string text;
};

/// A list's rows in a fresh tree.
FirstText firstRows(const ListFile& file, const std::vector<ListRow>& rows);

/// What is no such step. Throws StoreError.
using BuildRoutine = void (*)(const SettingsFiles& files, const HubProfiles& profiles);

using BuildStep = std::variant<RebuiltSettings, RebuiltGrid, EmptyTable, FirstText, BuildRoutine>;

/// The file that a step of the build makes; empty for a routine, which may make several or none.
std::string builtFile(const BuildStep& step);

/// What forms ask about the functions as a whole.
struct FunctionFacts
{
    /// Whether a rebuild makes a file, so that it is missed where it isn't there.
    std::function<bool(const std::string& file)> isBuilt = [](const std::string&) { return false; };

    /// The switch that turns off the function of a form; empty for none.
    std::function<std::string(const std::string& form)> switchOf = [](const std::string&) {
        return std::string();
    };
};

/// A function of the hub script, told once: its nodes with their forms, the folders that it lives in, and how
/// a rebuild fills them.
struct FunctionDeclaration
{
    std::vector<Node> nodes{};          ///< in the order of the tree
    std::vector<std::string> folders{}; ///< below the settings root, each made if it is missing
    std::vector<BuildStep> build{};     ///< after the folders
};

/// Every function whose folders and files a build makes, in its order.
using FolderCatalogue = std::vector<FunctionDeclaration>;

/// Makes a function's folders, where they are missing, and its files. Throws StoreError.
void buildFunction(const FunctionDeclaration& function, const SettingsFiles& files,
                   const HubProfiles& profiles);

} // namespace quillfen
