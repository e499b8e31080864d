#include "functions/communication/clock.h"

namespace quillfen {

const TableFile& clockSettings()
{
    static const TableFile file = {
        R"(Communication\Clock\ClockSettings.tbl)",
        "tClockSettings",
        {
            number("iDelay", "txtUpDown", "Display Delay", "60", 0, 250),
            flag("bManualControl", "chkCheckBox(0)", "Enable Manual Control", "0"),
            text("sDaylightSaving", "txtTextBox(0)", "Daylight Saving", "BST"),
            text("sStandardTime", "txtTextBox(1)", "Standard", "GMT"),
            profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles"),
        },
    };
    return file;
}

FunctionDeclaration clockFunction()
{
    return {.nodes = {{"Communication~Clock", "Clock",
                       settingsForm({"frmCommunicationClock", "Communication ~ Clock"}, clockSettings)}},
            .folders = {R"(Communication\Clock)"},
            .build = {RebuiltSettings{clockSettings}}};
}

} // namespace quillfen
