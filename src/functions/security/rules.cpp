#include "functions/security/rules.h"

#include "settings/listfile.h"
#include "settings/profiles.h"

namespace quillfen {

std::string rulesFile(std::size_t row)
{
    return R"(Security\Rules\Ascii\)" + HubProfiles::key(row) + ".asc";
}

void buildRules(const SettingsFiles& files, const HubProfiles& profiles)
{
    for (std::size_t row = 0; row < profiles.count(); ++row)
        writeIfMissing(files, rulesFile(row), "");
}

} // namespace quillfen
