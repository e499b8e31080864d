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
    const OwnPart part = {
        .kind = OwnPartKind::Rules,
        .explanations = {{"lvwRules", "Each row is a profile with a rules text of its own."}}};
    return {.nodes = {{"Security~Rules", "Rules", {{{"frmSecurityRules", "Security ~ Rules"}, {part}}}}},
            .folders = {R"(Security\Rules)", R"(Security\Rules\Ascii)"},
            .build = {makeRules}};
}

} // namespace quillfen
