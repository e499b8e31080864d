#pragma once

#include "declarations/function.h"

#include <string>
#include <vector>

namespace quillfen {

/// How a message of the day's row says where it goes.
inline constexpr const char* sentToMain = "Main";
inline constexpr const char* sentByPm = "PM";

/// A row per profile and one for everybody behind them: name and "Main" or "PM", ticked while the message is
/// sent.
std::vector<CellRow> loadMotds(const SettingsFiles& files, const HubProfiles& profiles);

/// Throws StoreError.
void saveMotds(const SettingsFiles& files, const std::vector<CellRow>& rows);

/// The text that belongs to a row.
std::string motdTextFile(std::size_t row, const HubProfiles& profiles);

FunctionDeclaration motdFunction();

} // namespace quillfen
