#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// The words and names of a grid's list. Columns behind the fourth are hidden: the keys of the acting and the
/// target profile.
struct GridWords
{
    std::string list = "lvwPermissions";
    std::string toolbar = "tlbListview";
    std::vector<std::string> columns = {"Command", "By Profile", "On Profile", "Allow To"};
    std::string yes = "Yes";
    std::string no = "No";
    bool filters = true;      ///< the buttons that show one command or one acting profile
    bool namesTarget = false; ///< each row names its target profile, also where the row above has the same
    bool namesCommandByProfile = false; ///< each acting profile's first row names the command
    bool targets = true;                ///< false: one value per command and profile, and three columns
    bool clickToggles = false;          ///< a click on a row toggles it
    std::string_view explanation{};     ///< what the permissions do for the hub's users, in a sentence
    std::string targetLink{};           ///< between command and target where a sentence tells a row: "of"

    /// The button that shows one command. A press of it takes the filter off if its key is COMMAND.
    std::string commandFilter = "COMMAND";
    std::string commandFilterTip = "View By Command";
};

/// The words of a grid without filters: each row names its target, and hidden columns hold the profiles'
/// keys.
GridWords unfilteredGrid();

/// The same with the command in the first row of each acting profile.
GridWords blockGrid();

} // namespace quillfen
