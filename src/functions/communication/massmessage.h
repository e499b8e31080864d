#pragma once

#include "declarations/function.h"

#include <string_view>

namespace quillfen {

/// The profiles that passive mass messages don't reach. The file holds the permissions as well.
const TableFile& massMessageSettings();

/// The targets besides the profiles, in the order of the form.
const std::vector<std::string>& massMessageTargets();

/// The text of the passive message. Only its editor makes it.
inline constexpr std::string_view passiveMessageFile = R"(Communication\MassMessage\Passive.asc)";

/// What the form edits: the immune profiles, and who may send to whom. A cell's `on` counts on behind the
/// profiles for the named targets.
struct MassMessage
{
    SettingValues immune;
    std::vector<PermissionCell> cells;
};

MassMessage loadMassMessage(const SettingsFiles& files, const HubProfiles& profiles);

/// Throws StoreError.
void saveMassMessage(const MassMessage& message, const SettingsFiles& files, const HubProfiles& profiles);

FunctionDeclaration massMessageFunction();

} // namespace quillfen
