#include "functions/useractions/calculator.h"

namespace quillfen {

const TableFile& calculatorSettings()
{
    static const TableFile file = {
        R"(UserActions\Calculator\CalculatorSettings.tbl)",
        "tCalculatorSettings",
        {setting::enabledProfiles().explained("Lets the ticked profiles use the calculator.")}};
    return file;
}

FunctionDeclaration calculatorFunction()
{
    return {.nodes = {{"UserActions~Calculator", "Calculator",
                       settingsForm({"frmUserActionsCalculator", "UserActions ~ Calculator"},
                                    calculatorSettings)}},
            .folders = {R"(UserActions\Calculator)"},
            .build = {RebuiltSettings{calculatorSettings}}};
}

} // namespace quillfen
