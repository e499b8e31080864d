#include "functions/communication/clock.h"

namespace quillfen {

const TableFile& clockSettings()
{
    static const TableFile file = {
        R"(Communication\Clock\ClockSettings.tbl)",
        "tClockSettings",
        {
            setting::number("iDelay", "txtUpDown", "Display Delay", 60, 0, 250),
            setting::flag("bManualControl", "chkCheckBox(0)", "Enable Manual Control", false),
            setting::text("sDaylightSaving", "txtTextBox(0)", "Daylight Saving", "BST")
                .explained("Names the time zone that is shown in summer."),
            setting::text("sStandardTime", "txtTextBox(1)", "Standard", "GMT")
                .explained("Names the time zone that is shown in winter."),
            setting::enabledProfiles().explained("Turns the clock on for the ticked profiles."),
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
