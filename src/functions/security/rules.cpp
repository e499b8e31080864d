#include "functions/security/rules.h"

#include "settings/profiles.h"

namespace quillfen {
namespace {

void makeRules(const SettingsFiles& files, const HubProfiles& profiles)
{
    for (std::size_t row = 0; row < profiles.count(); ++row)
        writeIfMissing(files, rulesFile(row), "");
}

std::vector<PlacedText> placedRules(const SettingsFiles& files, const HubProfiles& profiles)
{
    std::vector<PlacedText> texts;
    for (std::size_t row = 0; row < profiles.count(); ++row)
        texts.push_back({rulesFile(row), "lvwRules", static_cast<int>(row), "Profiles",
                         profiles.names()[row] + '\n' + files.ReadTextFile(rulesFile(row))});
    return texts;
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
        .explanations = {{"lvwRules", "Each row is a profile with a rules text of its own."}},
        .texts = placedRules,
        .paths = {R"(Security\Rules\Ascii\)"}};
    return {.nodes = {{"Security~Rules", "Rules", {{{"frmSecurityRules", "Security ~ Rules"}, {part}}}}},
            .folders = {R"(Security\Rules)", R"(Security\Rules\Ascii)"},
            .build = {makeRules}};
}

} // namespace quillfen
