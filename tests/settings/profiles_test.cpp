#include "settings/profiles.h"
#include "support/binaryprofiles.h"
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

/// A hub of today with a saved copy of the names that it had.
class HubProfileFiles : public testing::Test
{
protected:
    std::string& binary() { return hub.store.files["/hub/cfg/Profiles.pxb"]; }
    std::string& xml() { return hub.store.files["/hub/cfg/Profiles.xml"]; }
    HubProfileFile read() const { return readHubProfiles(hub.store, hub.files.paths()); }

    void saveCopyOf(const Names& names)
    {
        std::string& copy = hub.file("General/PtokaX/Profiles.xml");
        copy.clear();
        for (const std::string& name : names)
            copy += "\r\n\t<Name>" + name + "</Name>";
    }

    Names sentences() const
    {
        Names sentences;
        for (const ProfileNotice& notice : profileNotices(hub.store, hub.files.paths()))
            sentences.push_back(notice.sentence + '|' + notice.details);
        return sentences;
    }

    test::Hub hub;
};

TEST_F(HubProfileFiles, OfTodayComeBeforeTheXml)
{
    binary() = test::binaryProfiles({"Master", "VIP"});
    xml() = "<Name>Old</Name>\r\n";
    EXPECT_EQ(read().profiles.names(), (Names{"Unregistered", "Master", "VIP"}));
    EXPECT_FALSE(read().damaged);
}

TEST_F(HubProfileFiles, OfTodayAreSavedInTheFormOfTheXml)
{
    binary() = test::binaryProfiles({"Master", "VIP"});
    EXPECT_EQ(read().text, "\r\n<Name>Master</Name>\r\n<Name>VIP</Name>");
}

TEST_F(HubProfileFiles, FindEachNameAgainInTheCopyWhateverItHolds)
{
    binary() = test::binaryProfiles({"a<b", "<", "two\r\nlines", "\"q\",", "]"});
    EXPECT_EQ(read().profiles.count(), 6U);
    hub.file("General/PtokaX/Profiles.xml") = read().text;
    EXPECT_EQ(readSavedProfiles(hub.store, hub.files.paths()).names(),
              (Names{"Unregistered", "a b", " ", "two  lines", "\"q\",", "]"}));
    EXPECT_EQ(sentences(), Names{});
}

TEST_F(HubProfileFiles, ThatAreDamagedAreTakenAsNotThere)
{
    binary() = test::binaryProfiles({"Master", "VIP"}).substr(0, 50);
    EXPECT_TRUE(read().damaged);
    EXPECT_EQ(read().profiles.names(), Names{"Unregistered"});
    EXPECT_EQ(read().text, "");
    EXPECT_EQ(sentences(),
              Names{"The hub's Profiles.pxb is damaged: let the hub write it anew|Unregistered is the "
                    "only profile until then."});
    xml() = "<Name>Old</Name>\r\n";
    EXPECT_TRUE(read().damaged);
    EXPECT_EQ(read().profiles.names(), (Names{"Unregistered", "Old"}));
    EXPECT_EQ(read().text, "\r\n<Name>Old</Name>");
    EXPECT_EQ(sentences(),
              Names{"The hub's Profiles.pxb is damaged: let the hub write it anew|The profiles are those of "
                    "Profiles.xml."});
}

TEST_F(HubProfileFiles, ThatAreNotThereAreNotDamaged)
{
    EXPECT_FALSE(read().damaged);
    saveCopyOf({"Master"});
    EXPECT_EQ(sentences(), Names{}) << "no file says nothing of any profile";
}

TEST_F(HubProfileFiles, ThatAgreeWithTheCopySayNothing)
{
    xml() = "<Profiles>\r\n<Name>A</Name>\r\n<Name>B</Name>\r\n";
    saveCopyOf({"A", "B"});
    EXPECT_EQ(sentences(), Names{});
    binary() = test::binaryProfiles({"A", "B"});
    EXPECT_EQ(sentences(), Names{});
}

TEST_F(HubProfileFiles, TellOfANameThatChanged)
{
    binary() = test::binaryProfiles({"Master", "Helper", "Reg"});
    saveCopyOf({"Master", "VIP", "Reg"});
    EXPECT_EQ(sentences(),
              Names{"Hub profiles changed: VIP is now Helper; check the permissions|VIP is now Helper"});
}

TEST_F(HubProfileFiles, TellOfProfilesThatChangedPlaces)
{
    xml() = "<Name>B</Name>\r\n<Name>A</Name>\r\n<Name>C</Name>\r\n";
    saveCopyOf({"A", "B", "C"});
    EXPECT_EQ(sentences(),
              Names{"Hub profiles changed: A is now B ...; check the permissions|A is now B\nB is now A"});
}

TEST_F(HubProfileFiles, TellOfAProfileThatWent)
{
    xml() = "<Name>A</Name>\r\n<Name>C</Name>\r\n";
    saveCopyOf({"A", "B", "C"});
    EXPECT_EQ(sentences(),
              Names{"Hub profiles changed: B is now C ...; check the permissions|B is now C\nC is gone"});
    saveCopyOf({"A", "C", "D"});
    EXPECT_EQ(sentences(), Names{"Hub profiles changed: D is gone; check the permissions|D is gone"});
}

TEST_F(HubProfileFiles, SayNothingOfProfilesThatCameBehindTheOthers)
{
    xml() = "<Name>A</Name>\r\n<Name>B</Name>\r\n";
    saveCopyOf({"A"});
    EXPECT_EQ(sentences(), Names{});
}

} // namespace
} // namespace quillfen
