#include "functions/customise/asciiintros.h"
#include "functions/customise/customisetest.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class AsciiIntros : public test::CustomiseFiles
{
protected:
    std::string& settings = file("IntroOutro/AsciiIntroSettings.tbl");
};

TEST_F(AsciiIntros, AFreshBuildWritesDefaultsNoUsersAndAnEmptyIndex)
{
    buildFunction(asciiIntrosFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("AsciiIntroSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(file("IntroOutro/AsciiIntro.tbl"), "tAsciiIntro = {\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(file("IntroOutro/AsciiIntroIndex.tbl"), "tAsciiIntroIndex = {\r\n}\r\n"));
}

TEST_F(AsciiIntros, AUsersEditDialogNamesTheUser)
{
    EXPECT_EQ(asciiIntroUsers().editTitleOf({{"Sam", "dragon"}}), "Edit Ascii Intro for Sam");
}

TEST_F(AsciiIntros, ARebuildKeepsValuesGivesANewProfileZeroAndLeavesUsersAndIndex)
{
    settings = golden("AsciiIntroSettings.save.tbl");
    file("IntroOutro/AsciiIntro.tbl") = "the owner's";
    file("IntroOutro/AsciiIntroIndex.tbl") = "the owner's";
    hub.profiles.add("Reg");
    buildFunction(asciiIntrosFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, "tAsciiIntroSettings = {\r\n\tbNotifyOps = 0,\r\n"
                                    "\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n"
                                    "\t\t[1] = 1,\r\n\t\t[2] = 0,\r\n\t\t[3] = 0,\r\n\t},\r\n}\r\n"));
    EXPECT_EQ(file("IntroOutro/AsciiIntro.tbl"), "the owner's");
    EXPECT_EQ(file("IntroOutro/AsciiIntroIndex.tbl"), "the owner's");
}

TEST_F(AsciiIntros, ThePicturesAreThoseOfTheFolderWithoutTheirLastFourCharactersAndNotThoseOfTheIndex)
{
    file("IntroOutro/AsciiIntroIndex.tbl") = "tAsciiIntroIndex = {\r\n\t\"gone\",\r\n}\r\n";
    for (const char* name : {"dragon.asc", "Cat.asc", "old.html", "owl"})
        file(std::string("IntroOutro/Ascii/") + name) = "";
    EXPECT_EQ(asciiIntroFiles().load(hub.files, hub.profiles),
              (std::vector<CellRow>{{{"Cat"}}, {{"dragon"}}, {{"old."}}, {{""}}}));
}

TEST_F(AsciiIntros, TheHubScriptSeesWhatIsSaved)
{
    const auto values = luaValues(golden("AsciiIntroSettings.save.tbl"));
    EXPECT_EQ(values.at("tAsciiIntroSettings.bNotifyOps"), "0");
    EXPECT_EQ(values.at("tAsciiIntroSettings.tEnabledProfiles.1"), "1");
    EXPECT_EQ(values.size(), 5U);
    EXPECT_EQ(luaValues(golden("AsciiIntroSettings.build.tbl")).at("tAsciiIntroSettings.bNotifyOps"), "1");
    EXPECT_EQ(luaValues(golden("AsciiIntro.save.tbl")),
              (LuaValues{{"tAsciiIntro.merle", "dragon"}, {"tAsciiIntro.bob", "owl"}}));
    EXPECT_EQ(luaValues(golden("AsciiIntroIndex.save.tbl")), (LuaValues{{"tAsciiIntroIndex.1", "Cat"},
                                                                        {"tAsciiIntroIndex.2", "dragon"},
                                                                        {"tAsciiIntroIndex.3", "owl"}}));
}

} // namespace
} // namespace quillfen
