#include "functions/security/mainchat.h"

#include "settings/listfile.h"

namespace quillfen {
namespace {

Setting enabledProfiles()
{
    return setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles");
}

Setting exemptProfiles()
{
    return setting::profileFlags("tExemptProfiles", "lvwExemptProfiles", "Exempt Profiles");
}

} // namespace

const TableFile& mainBlockSettings()
{
    static const TableFile file = {
        R"(Security\MainBlock\MainBlockSettings.tbl)",
        "tMainBlockSettings",
        {setting::number("iBlockTime", "txtUpDown", "Temporary Block Time", 10, 5, 1440, setting::asTyped),
         enabledProfiles(), exemptProfiles()},
        {"tEnabledProfiles", "tExemptProfiles", "iBlockTime"},
    };
    return file;
}

const TableFile& mainLockSettings()
{
    static const TableFile file = {R"(Security\MainLock\MainLockSettings.tbl)",
                                   "tMainLockSettings",
                                   {enabledProfiles(), exemptProfiles()}};
    return file;
}

const TableFile& mainCleanerSettings()
{
    static const TableFile file = {
        R"(Security\MainCleaner\MainCleanerSettings.tbl)", "tMainCleanerSettings", {enabledProfiles()}};
    return file;
}

void buildMainBlock(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(mainBlockSettings(), files, profiles);
}

void buildMainLock(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(mainLockSettings(), files, profiles);
}

void buildMainCleaner(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(mainCleanerSettings(), files, profiles);
    writeIfMissing(files, mainCleanerText, "Cleaned");
}

} // namespace quillfen
