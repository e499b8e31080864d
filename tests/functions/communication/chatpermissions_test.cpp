#include "functions/communication/chatpermissions.h"
#include "settings/tablefile.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::luaValues;
using test::sameBytes;

class ChatPermissions : public testing::Test
{
protected:
    ChatPermissions()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    /// The expected bytes with the word of the one function or of the other.
    static std::string expected(const char* name, const std::string& table)
    {
        return table + golden(std::string("communication/") + name).substr(table.size());
    }

    test::Hub hub{"Communication", "Communication/Mute", "Communication/Talk"};
    std::string& mute = hub.file("Communication/Mute/Mute.tbl");
    std::string& talk = hub.file("Communication/Talk/Talk.tbl");
};

TEST_F(ChatPermissions, AFreshBuildAllowsNothing)
{
    buildFunction(muteFunction(), hub.files, hub.profiles);
    buildFunction(talkFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(mute, expected("Mute.build.tbl", "tMute")));
    EXPECT_TRUE(sameBytes(talk, expected("Mute.build.tbl", "tTalk")));
    const auto values = luaValues(talk);
    EXPECT_EQ(values.size(), 16U);
    for (const auto& [key, value] : values)
        EXPECT_EQ(value, "0") << key;
    EXPECT_TRUE(values.contains("tTalk.-1.2"));
}

TEST_F(ChatPermissions, ANewProfileJoinsARebuildWithZerosAndTheOtherCellsAreKept)
{
    const std::string rows = "\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t\t[1] = 0,\r\n\t},\r\n"
                             "\t[0] = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n\t\t[1] = 1,\r\n\t},\r\n"
                             "\t[1] = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n\t\t[1] = 0,\r\n\t},\r\n}\r\n";
    mute = "tMute = {\r\n" + rows;
    talk = "tTalk = {\r\n" + rows;
    buildFunction(muteFunction(), hub.files, hub.profiles);
    buildFunction(talkFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(mute, expected("Mute.rebuild.tbl", "tMute")));
    EXPECT_TRUE(sameBytes(talk, expected("Mute.rebuild.tbl", "tTalk")));
    EXPECT_EQ(luaValues(mute).at("tMute.0.1"), "1");
    EXPECT_EQ(luaValues(mute).at("tMute.2.2"), "0");
}

TEST_F(ChatPermissions, AHubWithoutProfilesHasOneCell)
{
    hub.profiles = {};
    buildFunction(muteFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(mute, "tMute = {\r\n\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t},\r\n}\r\n"));
}

TEST_F(ChatPermissions, AHubOf64ProfilesHasItsWholeSquare)
{
    hub.profiles = {};
    for (int number = 1; number < 64; ++number)
        hub.profiles.add("P" + std::to_string(number));
    buildFunction(talkFunction(), hub.files, hub.profiles);
    EXPECT_EQ(luaValues(talk).size(), 64U * 64U);
    EXPECT_EQ(hub.store.readings[hub.root + "/Communication/Talk/Talk.tbl"], 1);
}

} // namespace
} // namespace quillfen
