#pragma once

#include "settings/declaration.h"
#include "settings/permissiongrid.h"

#include <string_view>

namespace quillfen {

/// How warnings, kicks and bans count up to the next, and how the log is cleaned.
const TableFile& kickSettings();

/// The text that goes with a kick.
inline constexpr std::string_view kickAsciiFile = R"(Security\Kick\KickAscii.asc)";

/// Who may punish whom, as the form edits it.
const PermissionGrid& kickPermissions();

void buildKicks(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
