#include "settings/profiles.h"
#include "support/hub.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

class Profiles : public testing::Test
{
protected:
    std::string read(const std::string& bytes)
    {
        hub.store.files["/hub/cfg/Profiles.xml"] = bytes;
        return ReadProfileFile(hub.store, hub.files.paths(), R"(cfg\Profiles.xml)", hub.profiles);
    }

    const std::vector<std::string>& names() const { return hub.profiles.names(); }

    test::Hub hub;
};

using Names = std::vector<std::string>;

TEST_F(Profiles, StandBehindUnregisteredInTheFilesOrder)
{
    read("<Profiles>\r\n\t<Profile>\r\n\t\t<Name>Master</Name>\r\n\t\t<Permissions>111</Permissions>\r\n\t</"
         "Profile>\r\n"
         "\t<Profile>\r\n    <Name>Operator</Name>\r\n<Name>VIP</Name>\r\n");
    EXPECT_EQ(names(), (Names{"Unregistered", "Master", "Operator", "VIP"}));
}

TEST_F(Profiles, KeysBeginAtMinusOne)
{
    read("<Name>A</Name>\n<Name>B</Name>\n<Name>C</Name>\n");
    ASSERT_EQ(hub.profiles.count(), 4U);
    EXPECT_EQ(HubProfiles::key(0), "-1");
    EXPECT_EQ(HubProfiles::key(1), "0");
    EXPECT_EQ(HubProfiles::key(2), "1");
    EXPECT_EQ(HubProfiles::key(3), "2");
    EXPECT_EQ(hub.profiles.keys(), (Names{"-1", "0", "1", "2"}));
    EXPECT_EQ(hub.profiles.keys(2), (Names{"1", "2"}));
}

TEST_F(Profiles, WithoutTheHubsFileOnlyUnregisteredIsThere)
{
    EXPECT_EQ(ReadProfileFile(hub.store, hub.files.paths(), R"(cfg\Profiles.xml)", hub.profiles), "");
    EXPECT_EQ(names(), Names{"Unregistered"});
}

TEST_F(Profiles, ANameBehindOtherTextOnItsLineIsNotSeen)
{
    read("<Profile><Name>Master</Name></Profile>\r\n");
    EXPECT_EQ(names(), Names{"Unregistered"});
}

TEST_F(Profiles, AnEmptyNameIsNotAddedAndEndsAtTheLine)
{
    read("<Name></Name>\r\n<Name>\r\n<Name>Next</Name>\r\n");
    EXPECT_EQ(names(), (Names{"Unregistered", "Next"}));
}

TEST_F(Profiles, AOneCharacterNameWorks)
{
    read("<Name>X</Name>");
    EXPECT_EQ(names(), (Names{"Unregistered", "X"}));
}

TEST_F(Profiles, TheTextIsEachLineBehindALineEnd)
{
    EXPECT_EQ(read("<a>\n\t<Name>X</Name>\n"), "\r\n<a>\r\n\t<Name>X</Name>");
}

} // namespace
} // namespace quillfen
