#pragma once

#include "settings/permissiongrid.h"

namespace quillfen {

/// Who may mute whom, and who may talk through whom.
const PermissionGrid& mutePermissions();
const PermissionGrid& talkPermissions();

void buildMute(const SettingsFiles& files, const HubProfiles& profiles);
void buildTalk(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
