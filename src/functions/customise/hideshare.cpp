#include "functions/customise/hideshare.h"

#include "functions/customise/shared/enabledprofiles.h"
#include "settings/listfile.h"

namespace quillfen {

const TableFile& hideShareSettings()
{
    static const TableFile file = {R"(CustomiseUser\HideShare\HideShareSettings.tbl)",
                                   "tHideShareSettings",
                                   {enabledProfiles("Enabled Profiles")}};
    return file;
}

void buildHideShare(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(hideShareSettings(), files, profiles);
    writeEmptyTableIfMissing(files, R"(CustomiseUser\HideShare\HideShareUsers.tbl)", "tHideShareUsers");
}

} // namespace quillfen
