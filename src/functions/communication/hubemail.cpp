#include "functions/communication/hubemail.h"

namespace quillfen {
namespace {

TableFile declaredHubEmail()
{
    TableFile file = {
        R"(Communication\HubEmail\HubEmailSettings.tbl)",
        "tHubEmailSettings",
        {
            setting::number("iInboxSize", "txtUpDown", "Inbox Capacity", 10, 0, 250),
        },
    };
    file.makesFolder = true;
    return file;
}

} // namespace

const TableFile& hubEmailSettings()
{
    static const TableFile file = declaredHubEmail();
    return file;
}

FunctionDeclaration hubEmailFunction()
{
    return {.nodes = {{.key = "Communication~HubEmail",
                       .caption = "HubEmail",
                       .form = settingsForm({"frmCommunicationHubEmail", "Communication ~ HubEmail"},
                                            hubEmailSettings),
                       .inTree = false}}};
}

} // namespace quillfen
