#include "functions/communication/whisper.h"

namespace quillfen {

const TableFile& whisperSettings()
{
    static const TableFile file = {
        R"(Communication\Whisper\WhisperSettings.tbl)",
        "tWhisperSettings",
        {
            // The label is the kick settings' own: users know the box by it.
            setting::flag("bSendConfirmation", "chkCheckBox", "Announce Kicked Return", true),
        },
    };
    return file;
}

void buildWhisper(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(whisperSettings(), files, profiles);
}

} // namespace quillfen
