#include "functions/customise/shared/enabledprofiles.h"

namespace quillfen {

Setting enabledProfiles(const std::string& label)
{
    return setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", label, "Enabled Profiles");
}

} // namespace quillfen
