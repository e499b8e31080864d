#include "functions/security/flood.h"

namespace quillfen {

const PermissionGrid& floodPermissions()
{
    static const PermissionGrid grid = {{{"Flood", R"(Security\Flood\FloodSettings.tbl)", "tFloodSettings"}}};
    return grid;
}

FunctionDeclaration floodFunction()
{
    const FormDescription form = {
        .name = "frmSecurityFlood", .caption = "Security ~ Flood", .hasRestore = false};
    const PermissionGrid& grid = floodPermissions();
    return {.nodes = {{"Security~Flooder", "Flooder",
                       gridForm(
                           form, [] { return sourceOf(floodPermissions()); }, unfilteredGrid())}},
            .folders = {R"(Security\Flood)"},
            .build = {RebuiltGrid{grid.commands.front(), grid.firstProfile}}};
}

} // namespace quillfen
