#include "functions/communication/chatpermissions.h"

namespace quillfen {

const PermissionGrid& mutePermissions()
{
    static const PermissionGrid grid = {{{"Mute", R"(Communication\Mute\Mute.tbl)", "tMute"}}};
    return grid;
}

const PermissionGrid& talkPermissions()
{
    static const PermissionGrid grid = {{{"Talk", R"(Communication\Talk\Talk.tbl)", "tTalk"}}};
    return grid;
}

void buildMute(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildGridFile(mutePermissions().commands.front(), 0, files, profiles);
}

void buildTalk(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildGridFile(talkPermissions().commands.front(), 0, files, profiles);
}

} // namespace quillfen
