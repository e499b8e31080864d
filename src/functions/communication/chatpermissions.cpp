#include "functions/communication/chatpermissions.h"

namespace quillfen {
namespace {

FormDeclaration blockForm(const char* name, const char* caption, const PermissionGrid& (*grid)(),
                          std::string_view explanation)
{
    GridWords words = blockGrid();
    words.explanation = explanation;
    return gridForm(
        {.name = name, .caption = caption, .hasRestore = false}, [grid] { return sourceOf(grid()); }, words);
}

} // namespace

const PermissionGrid& mutePermissions()
{
    static const PermissionGrid grid = {{{"Mute", R"(Communication\Mute\Mute.tbl)", "tMute"}}};
    return grid;
}

const PermissionGrid& talkPermissions()
{
    static const PermissionGrid grid = {{{"Talk", R"(Communication\Talk\Talk.tbl)", "tTalk"}}};
    return grid;
}

FunctionDeclaration muteFunction()
{
    return {.nodes = {{"Communication~Mute", "Mute",
                       blockForm("frmCommunicationMute", "Communication ~ Mute", mutePermissions,
                                 "Lets users of the acting profile mute users of the target profile.")}},
            .folders = {R"(Communication\Mute)"},
            .build = {RebuiltGrid{mutePermissions().commands.front()}}};
}

FunctionDeclaration talkFunction()
{
    return {
        .nodes = {{"Communication~Talk", "Talk",
                   blockForm("frmCommunicationTalk", "Communication ~ Talk", talkPermissions,
                             "Lets users of the acting profile use Talk on users of the target profile.")}},
        .folders = {R"(Communication\Talk)"},
        .build = {RebuiltGrid{talkPermissions().commands.front()}}};
}

} // namespace quillfen
