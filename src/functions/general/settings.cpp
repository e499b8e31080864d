#include "functions/general/settings.h"

namespace quillfen {

const TableFile& generalSettings()
{
    static const TableFile file = {
        R"(General\Globals\GeneralSettings.tbl)",
        "tGeneralSettings",
        {
            setting::flag("bAllowAllPrefixes", "chkCheckBox(0)", "Allow All Prefixes", true)
                .explained("Lets users begin a command with any of the prefixes."),
            setting::flag("bFlatRC", "chkCheckBox(1)", "Flattened RC", false)
                .explained("Gives users a flat right click menu."),
            setting::flag("bUnregRCEnable", "chkCheckBox(2)", "Enable RC for Unreg", true)
                .explained("Gives unregistered users right clicks too."),
            setting::text("sBorder", "txtTextBox(0)", "Border", "\xBB\xAB")
                .explained("Sets the two border characters."),
            setting::text("sRightClickName", "txtTextBox(1)", "Right Click Name", "")
                .explained("Sets the name of the right click menu."),
            setting::entry("sPrefix", "cboPrefixes", "Prefixes", "+",
                           {"+", "-", "!", "#", "$", "\xA3", "?", "~", "="})
                .explained("Sets the prefix that users type in front of a command."),
        },
        {"bAllowAllPrefixes", "sPrefix", "sRightClickName", "sBorder", "bFlatRC", "bUnregRCEnable"},
    };
    return file;
}

FunctionDeclaration generalSettingsFunction()
{
    // This form was never set clean by a discard: its "SAVE" stays lit until the next save.
    const FormDescription form = {
        "frmGeneralGeneral", "General ~ Settings", {3165, 3450}, FormDescription::AfterDiscard::AsItStood};
    return {.nodes = {{"General~Settings", "Settings", settingsForm(form, generalSettings)}},
            .folders = {R"(General\Globals)"},
            .build = {RebuiltSettings{generalSettings}}};
}

} // namespace quillfen
