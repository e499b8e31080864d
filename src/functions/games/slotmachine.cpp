#include "functions/games/slotmachine.h"

#include "functions/games/shared/playinmain.h"

namespace quillfen {
namespace {

Setting credit(const char* key, const char* control, const char* label, int defaultValue, int minimum,
               int maximum, int step)
{
    return setting::number(key, control, label, defaultValue, minimum, maximum, {.step = step});
}

} // namespace

const TableFile& slotMachineSettings()
{
    static const TableFile file = {
        R"(Games\SlotMachine\SlotMachineSettings.tbl)",
        "tSlotMachineSettings",
        {
            setting::flag("bInMain", "chkCheckBox(0)", "Play In Main", true).explained(playsInMainChat),
            credit("iCredit", "txtUpDown(0)", "Credit - Start", 50, 50, 5000, 5),
            credit("iCreditPlay", "txtUpDown(1)", "Credit - Play", 2, 1, 100, 1),
            credit("iCreditLoan", "txtUpDown(2)", "Credit - Loan", 1000, 50, 50000, 5),
            setting::ConstantRows{"tResults",
                                  {R"(["Bar"] = 100)", R"(["7"] = 50)", R"(["@"] = 20)", R"(["$"] = 10)",
                                   "[\"\xA3\"] = 5", "[\"\xA7\"] = 3", R"(["&"] = 1)"}},
            setting::ConstantRows{"tAux", {"100", "50", "20", "10", "5", "3", "1"}},
        },
    };
    return file;
}

FunctionDeclaration slotMachineFunction()
{
    return {.nodes = {{"Games~SlotMachine", "Slot Machine",
                       settingsForm({"frmGamesSlotMachine", "Games ~ SlotMachine"}, slotMachineSettings)}},
            .folders = {R"(Games\SlotMachine)"},
            .build = {RebuiltSettings{slotMachineSettings},
                      EmptyTable{R"(Games\SlotMachine\SlotMachinePlayers.tbl)", "tSlotMachinePlayers"}}};
}

} // namespace quillfen
