#include "functions/communication/chatrooms.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::luaValues;
using test::sameBytes;

class ChatRooms : public testing::Test
{
protected:
    ChatRooms()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    test::Hub hub{"Communication", "Communication/ChatRooms"};
    const std::string rooms = "Communication/ChatRooms/ChatRooms.tbl";
    const std::string settings = "Communication/ChatRooms/ChatRoomSettings.tbl";
};

TEST_F(ChatRooms, AFreshBuildWritesTheDefaultsAndNoRoom)
{
    buildFunction(chatRoomsFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(settings), golden("communication/ChatRoomSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(hub.file(rooms), "tChatRooms = {\r\n}\r\n"));
    const auto values = luaValues(hub.file(settings));
    EXPECT_EQ(values.at("tChatRoomSettings.tAnnounce.bDeleted"), "1");
    EXPECT_EQ(values.size(), 17U);
}

TEST_F(ChatRooms, ARebuildKeepsTheSettingsAndTheRoomsAndANewProfileJoinsWithZero)
{
    hub.profiles.add("Newcomer");
    hub.file(settings) = golden("communication/ChatRoomSettings.save.tbl");
    hub.file(rooms) = "tChatRooms = {\r\n\tmine\r\n}\r\n";
    buildFunction(chatRoomsFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(settings), golden("communication/ChatRoomSettings.rebuild.tbl")));
    EXPECT_EQ(hub.file(rooms), "tChatRooms = {\r\n\tmine\r\n}\r\n");
    EXPECT_EQ(luaValues(hub.file(settings)).at("tChatRoomSettings.tEnabledProfilesMembers.2"), "1");
}

TEST_F(ChatRooms, LeaveTheUnregisteredOutOfEveryTable)
{
    hub.profiles.add("Fourth");
    buildFunction(chatRoomsFunction(), hub.files, hub.profiles);
    const auto values = luaValues(hub.file(settings));
    for (const char* table : {"", "Create", "Delete", "Suspend", "Members"}) {
        const std::string prefix = std::string("tChatRoomSettings.tEnabledProfiles") + table + ".";
        EXPECT_FALSE(values.contains(prefix + "-1"));
        EXPECT_TRUE(values.contains(prefix + "0"));
        EXPECT_TRUE(values.contains(prefix + "3"));
        EXPECT_FALSE(values.contains(prefix + "4"));
    }
}

} // namespace
} // namespace quillfen
