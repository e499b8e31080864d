#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// Who may do what with chat rooms, and what operators are told of. "Unregistered" takes no part.
const TableFile& chatRoomSettings();

void buildChatRooms(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
