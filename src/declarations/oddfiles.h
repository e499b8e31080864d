#pragma once

#include <string_view>

namespace quillfen {

// What is odd about single files, told once for the function that has it and for the advice on it.

/// What is switched on and off: a flag by each function's name.
inline constexpr const char* switchesPath = R"(General\Globals\Switches.tbl)";

/// The list of the clients' versions, whose rows are `<allow>^<min version>`.
inline constexpr const char* clientVersionsFile = R"(Security\ClientChecker\ClientVersions.tbl)";

/// The question that a first build writes. It ends in "t", so that no form ever shows it.
inline constexpr std::string_view firstTriviaQuestion =
    "Misc:Which short word is the title of a novel in Tavis Orlemon's series?*mort";

} // namespace quillfen
