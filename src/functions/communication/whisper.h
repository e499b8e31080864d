#pragma once

#include "settings/declaration.h"

namespace quillfen {

/// Whether a whisper is confirmed to its sender.
const TableFile& whisperSettings();

void buildWhisper(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
