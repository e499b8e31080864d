#include "functions/customise/shared/enabledprofiles.h"

namespace quillfen {

Setting enabledProfiles(const std::string& label, std::string_view explanation)
{
    return setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", label, "Enabled Profiles")
        .explained(explanation);
}

} // namespace quillfen
