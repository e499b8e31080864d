#include "functions/general/settings.h"

namespace quillfen {

const TableFile& generalSettings()
{
    static const TableFile file = {
        R"(General\Globals\GeneralSettings.tbl)",
        "tGeneralSettings",
        {
            flag("bAllowAllPrefixes", "chkCheckBox(0)", "Allow All Prefixes", "1"),
            flag("bFlatRC", "chkCheckBox(1)", "Flattened RC", "0"),
            flag("bUnregRCEnable", "chkCheckBox(2)", "Enable RC for Unreg", "1"),
            text("sBorder", "txtTextBox(0)", "Border", "\xBB\xAB"),
            text("sRightClickName", "txtTextBox(1)", "Right Click Name", ""),
            entry("sPrefix", "cboPrefixes", "Prefixes", "+",
                  {"+", "-", "!", "#", "$", "\xA3", "?", "~", "="}),
        },
        {"bAllowAllPrefixes", "sPrefix", "sRightClickName", "sBorder", "bFlatRC", "bUnregRCEnable"},
    };
    return file;
}

void buildGeneralSettings(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(generalSettings(), files, profiles);
}

} // namespace quillfen
