#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// The file of the bots that speak for the script's functions, one table per function.
inline constexpr std::string_view botFile = R"(General\Bots\Bots.tbl)";

/// The functions that speak through a bot, by their words, in the order of the bots' file.
const std::vector<std::string_view>& botFunctions();

/// A function's table there: "tTrivia".
std::string botTable(std::string_view function);

} // namespace quillfen
