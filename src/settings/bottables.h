#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// The file of the bots that speak for the script's functions, one table per function.
inline constexpr std::string_view botFile = R"(General\Bots\Bots.tbl)";

/// The functions of a group that speak through a bot, by their words; none if there is no such group.
std::span<const std::string_view> botFunctions(std::string_view group);

/// Those of all groups, in the order of the bots' file.
std::vector<std::string_view> botFunctions();

/// A function's table there: "tTrivia".
std::string botTable(std::string_view function);

} // namespace quillfen
