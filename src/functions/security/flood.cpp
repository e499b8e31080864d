#include "functions/security/flood.h"

namespace quillfen {

const PermissionGrid& floodPermissions()
{
    static const PermissionGrid grid = {{{"Flood", R"(Security\Flood\FloodSettings.tbl)", "tFloodSettings"}}};
    return grid;
}

void buildFlood(const SettingsFiles& files, const HubProfiles& profiles)
{
    const PermissionGrid& grid = floodPermissions();
    rebuildGridFile(grid.commands.front(), grid.firstProfile, files, profiles);
}

} // namespace quillfen
