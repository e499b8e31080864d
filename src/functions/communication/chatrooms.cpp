#include "functions/communication/chatrooms.h"

namespace quillfen {
namespace {

constexpr const char* announceTable = "tAnnounce";
constexpr const char* announceFrame = "Announce To Ops";

Setting announcement(const char* key, const char* control, const char* label, std::string_view explanation)
{
    auto flag = setting::flag(key, control, label, true, {.frame = announceFrame});
    flag.nest = announceTable;
    return flag.explained(explanation);
}

Setting right(const std::string& keyWord, const std::string& word, std::string_view explanation)
{
    return setting::hubProfileFlags("tEnabledProfiles" + keyWord, "lvwEnabledProfiles" + word,
                                    "Enabled Profiles - " + word, "Enabled Profiles")
        .explained(explanation);
}

} // namespace

const TableFile& chatRoomSettings()
{
    static const TableFile file = {
        R"(Communication\ChatRooms\ChatRoomSettings.tbl)",
        "tChatRoomSettings",
        {
            announcement("bDeleted", "chkDeleted", "Deletion", "Tells operators of a room's deletion."),
            announcement("bSuspended", "chkSuspended", "Suspension",
                         "Tells operators of a room's suspension."),
            right("Create", "Create", "Lets the ticked profiles create chat rooms."),
            right("Delete", "Delete", "Lets the ticked profiles delete chat rooms."),
            right("Suspend", "Suspend", "Lets the ticked profiles suspend chat rooms."),
            right("Members", "Members", "Lets the ticked profiles manage the members of chat rooms."),
            right("", "Default", "Gives the ticked profiles the default rights in chat rooms."),
        },
        {"bDeleted", "bSuspended", "tEnabledProfiles", "tEnabledProfilesCreate", "tEnabledProfilesDelete",
         "tEnabledProfilesSuspend", "tEnabledProfilesMembers"},
    };
    return file;
}

FunctionDeclaration chatRoomsFunction()
{
    return {.nodes = {{"Communication~ChatRooms", "ChatRooms",
                       settingsForm({"frmCommunicationChatRooms", "Communication ~ ChatRooms"},
                                    chatRoomSettings)}},
            .folders = {R"(Communication\ChatRooms)"},
            // The rooms are the hub script's own: no form reads them, and a rebuild leaves them.
            .build = {RebuiltSettings{chatRoomSettings},
                      EmptyTable{R"(Communication\ChatRooms\ChatRooms.tbl)", "tChatRooms"}}};
}

} // namespace quillfen
