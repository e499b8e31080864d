#include "functions/customise/shared/enabledprofiles.h"

namespace quillfen {

Setting enabledProfiles(const std::string& label)
{
    Setting setting = profileFlags("tEnabledProfiles", "lvwEnabledProfiles", label);
    setting.column = "Enabled Profiles";
    return setting;
}

} // namespace quillfen
