#include "functions/customise/hideshare.h"

#include "functions/customise/shared/enabledprofiles.h"

namespace quillfen {

const TableFile& hideShareSettings()
{
    static const TableFile file = {
        R"(CustomiseUser\HideShare\HideShareSettings.tbl)",
        "tHideShareSettings",
        {enabledProfiles("Enabled Profiles", "Hides the share of users of the ticked profiles.")}};
    return file;
}

FunctionDeclaration hideShareFunction()
{
    return {.nodes = {{"CustomiseUser~HideShare", "Hide Share",
                       settingsForm({"frmCustomiseUserHideShare", "CustomiseUser ~ HideShare"},
                                    hideShareSettings)}},
            .folders = {R"(CustomiseUser\HideShare)"},
            .build = {RebuiltSettings{hideShareSettings},
                      EmptyTable{R"(CustomiseUser\HideShare\HideShareUsers.tbl)", "tHideShareUsers"}}};
}

} // namespace quillfen
