#include "functions/communication/chatrooms.h"

namespace quillfen {
namespace {

constexpr const char* announceTable = "tAnnounce";
constexpr const char* announceFrame = "Announce To Ops";

Setting announcement(const char* key, const char* control, const char* label)
{
    auto flag = setting::flag(key, control, label, true, {.frame = announceFrame});
    flag.nest = announceTable;
    return flag;
}

Setting right(const std::string& keyWord, const std::string& word)
{
    return setting::hubProfileFlags("tEnabledProfiles" + keyWord, "lvwEnabledProfiles" + word,
                                    "Enabled Profiles - " + word, "Enabled Profiles");
}

} // namespace

const TableFile& chatRoomSettings()
{
    static const TableFile file = {
        R"(Communication\ChatRooms\ChatRoomSettings.tbl)",
        "tChatRoomSettings",
        {
            announcement("bDeleted", "chkDeleted", "Deletion"),
            announcement("bSuspended", "chkSuspended", "Suspension"),
            right("Create", "Create"),
            right("Delete", "Delete"),
            right("Suspend", "Suspend"),
            right("Members", "Members"),
            right("", "Default"),
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
