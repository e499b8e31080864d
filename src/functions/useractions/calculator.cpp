#include "functions/useractions/calculator.h"

namespace quillfen {

const TableFile& calculatorSettings()
{
    static const TableFile file = {
        R"(UserActions\Calculator\CalculatorSettings.tbl)",
        "tCalculatorSettings",
        {setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles")}};
    return file;
}

void buildCalculator(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(calculatorSettings(), files, profiles);
}

} // namespace quillfen
