#include "functions/security/rules.h"

#include "settings/profiles.h"

namespace quillfen {
namespace {

void makeRules(const SettingsFiles& files, const HubProfiles& profiles)
{
    for (std::size_t row = 0; row < profiles.count(); ++row)
        writeIfMissing(files, rulesFile(row), "");
}

} // namespace

std::string rulesFile(std::size_t row)
{
    return R"(Security\Rules\Ascii\)" + HubProfiles::key(row) + ".asc";
}

FunctionDeclaration rulesFunction()
{
    return {.nodes = {{"Security~Rules",
                       "Rules",
                       {{{"frmSecurityRules", "Security ~ Rules"}, {OwnPart{OwnPartKind::Rules}}}}}},
            .folders = {R"(Security\Rules)", R"(Security\Rules\Ascii)"},
            .build = {makeRules}};
}

} // namespace quillfen
