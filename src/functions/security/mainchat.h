#pragma once

#include "settings/declaration.h"

#include <string_view>

namespace quillfen {

/// Who may block the main chat for a while, who is not held by it, and for how long it lasts.
const TableFile& mainBlockSettings();

/// Who may lock the main chat, and who is not held by it.
const TableFile& mainLockSettings();

/// Who may clean the main chat.
const TableFile& mainCleanerSettings();

/// The text that is shown after a cleaning.
inline constexpr std::string_view mainCleanerText = R"(Security\MainCleaner\MainCleaner.asc)";

void buildMainBlock(const SettingsFiles& files, const HubProfiles& profiles);
void buildMainLock(const SettingsFiles& files, const HubProfiles& profiles);
void buildMainCleaner(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
