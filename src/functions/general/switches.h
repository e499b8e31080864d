#pragma once

#include "declarations/function.h"

#include <span>
#include <string_view>

namespace quillfen {

class HubProfiles;
class SettingsFiles;
struct ListFile;

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

/// The name of the switch for a node's function; empty if it has none.
std::string_view switchOf(std::string_view nodeKey);

/// The two files of switches; a row that was put in by hand shows and is saved like any other.
const ListFile& switchesFile();
const ListFile& enabledRightClicksFile();

FunctionDeclaration switchesFunction();

} // namespace quillfen
