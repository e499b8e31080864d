#include "functions/communication/whisper.h"

namespace quillfen {

const TableFile& whisperSettings()
{
    static const TableFile file = {
        R"(Communication\Whisper\WhisperSettings.tbl)",
        "tWhisperSettings",
        {
            // The label is the kick settings' own: users know the box by it.
            setting::flag("bSendConfirmation", "chkCheckBox", "Announce Kicked Return", true)
                .explained(
                    "Switches the confirmation of whispers, although its caption is that of a kick setting."),
        },
    };
    return file;
}

FunctionDeclaration whisperFunction()
{
    return {.nodes = {{.key = "Communication~Whisper",
                       .caption = "Whisper",
                       .form = settingsForm({"frmCommunicationWhisper", "Communication ~ Whisper"},
                                            whisperSettings),
                       .inTree = false}},
            .folders = {R"(Communication\Whisper)"},
            .build = {RebuiltSettings{whisperSettings}}};
}

} // namespace quillfen
