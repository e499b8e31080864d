#include "functions/customise/customisetest.h"
#include "functions/customise/introsoutros.h"

#include <algorithm>
#include <set>

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class IntrosOutrosFiles : public test::CustomiseFiles
{
protected:
    std::string& settings = file("IntroOutro/IntroOutroSettings.tbl");
    std::string& customSettings = file("IntroOutro/CustomIntroOutroSettings.tbl");

    void build() { buildFunction(introsOutrosFunction(), hub.files, hub.profiles); }
};

TEST_F(IntrosOutrosFiles, AFreshBuildWritesDefaultsAndEmptyLists)
{
    build();
    EXPECT_TRUE(sameBytes(settings, golden("IntroOutroSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(customSettings, golden("CustomIntroOutroSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(file("IntroOutro/Intro.tbl"), "tIntro = {\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(file("IntroOutro/Outro.tbl"), "tOutro = {\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(file("IntroOutro/CustomIntro.tbl"), "tCustomIntro = {\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(file("IntroOutro/CustomOutro.tbl"), "tCustomOutro = {\r\n}\r\n"));
    EXPECT_EQ(luaValues(file("IntroOutro/CustomOutro.tbl")), (LuaValues{{"tCustomOutro", "{}"}}));
}

TEST_F(IntrosOutrosFiles, ARebuildKeepsValuesGivesANewProfileZeroAndLeavesTheLists)
{
    settings = golden("IntroOutroSettings.save.tbl");
    customSettings =
        "tCustomIntroOutroSettings = {\r\n\ttEnabledProfiles = {\r\n\t\t[1] = 1,\r\n\t},\r\n}\r\n";
    for (const char* list : {"Intro", "Outro", "CustomIntro", "CustomOutro"})
        file(std::string("IntroOutro/") + list + ".tbl") = "the owner's";
    hub.profiles.add("Reg");
    build();
    EXPECT_TRUE(sameBytes(settings, "tIntroOutroSettings = {\r\n\tbRegIntroEnabled = 0,\r\n"
                                    "\tsRegIntro = \"Mind the dragon, !nick!\",\r\n"
                                    "\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n"
                                    "\t\t[1] = 0,\r\n\t\t[2] = 1,\r\n\t\t[3] = 0,\r\n\t},\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(customSettings, "tCustomIntroOutroSettings = {\r\n\tbNotifyOps = 1,\r\n"
                                          "\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n"
                                          "\t\t[1] = 1,\r\n\t\t[2] = 0,\r\n\t\t[3] = 0,\r\n\t},\r\n}\r\n"));
    for (const char* list : {"Intro", "Outro", "CustomIntro", "CustomOutro"})
        EXPECT_EQ(file(std::string("IntroOutro/") + list + ".tbl"), "the owner's");
}

TEST_F(IntrosOutrosFiles, AnEmptiedUnregisteredIntroGetsItsDefaultBackFromARebuild)
{
    settings = "tIntroOutroSettings = {\r\n\tbRegIntroEnabled = 0,\r\n\tsRegIntro = \"\",\r\n}\r\n";
    build();
    const auto values = luaValues(settings);
    EXPECT_EQ(values.at("tIntroOutroSettings.sRegIntro"),
              "Welcome !nick! to !hubname!. Type !prefix!!regcommand! to register");
    EXPECT_EQ(values.at("tIntroOutroSettings.bRegIntroEnabled"), "0");
}

TEST_F(IntrosOutrosFiles, TheDefaultLinesAreDistinctNameTheUserAndCanBeLoaded)
{
    std::set<std::string> all;
    for (const RowListDeclaration& list : standardIntrosOutros().lines.lists) {
        for (const CellRow& row : list.restored(hub.profiles)) {
            const std::string& line = row.cells.at(0);
            EXPECT_TRUE(all.insert(line).second) << line;
            EXPECT_NE(line.find("!username!"), std::string::npos) << line;
            EXPECT_TRUE(std::all_of(line.begin(), line.end(), [](char each) {
                return each >= ' ' && each <= '~' && each != '"' && each != '\\';
            })) << line;
        }
    }
    EXPECT_EQ(all.size(), 14U + 18U);
    EXPECT_EQ(
        std::count_if(all.begin(), all.end(),
                      [](const std::string& line) { return line.find("!random!") != std::string::npos; }),
        1);
}

TEST_F(IntrosOutrosFiles, AUsersLineEndsAtItsSecondEqualsSignWhereAPlainOneKeepsIt)
{
    file("IntroOutro/Intro.tbl") = "tIntro = {\r\n\t\"1 + 1 = 2 = too\",\r\n}\r\n";
    file("IntroOutro/CustomIntro.tbl") = "tCustomIntro = {\r\n\t[\"bob\"] = \"a = b\",\r\n}\r\n";
    EXPECT_EQ(standardIntrosOutros().lines.lists[0].load(hub.files, hub.profiles)[0].cells[0],
              "1 + 1 = 2 = too");
    EXPECT_EQ(customIntrosOutros().lines.lists[0].load(hub.files, hub.profiles)[0].cells,
              (std::vector<std::string>{"bob", "a"}));
}

TEST_F(IntrosOutrosFiles, TheHubScriptSeesWhatIsSaved)
{
    EXPECT_EQ(luaValues(golden("IntroOutroSettings.save.tbl")),
              (LuaValues{{"tIntroOutroSettings.bRegIntroEnabled", "0"},
                         {"tIntroOutroSettings.sRegIntro", "Mind the dragon, !nick!"},
                         {"tIntroOutroSettings.tEnabledProfiles.-1", "0"},
                         {"tIntroOutroSettings.tEnabledProfiles.0", "1"},
                         {"tIntroOutroSettings.tEnabledProfiles.1", "0"},
                         {"tIntroOutroSettings.tEnabledProfiles.2", "1"}}));
    EXPECT_EQ(luaValues(golden("CustomIntroOutroSettings.save.tbl")),
              (LuaValues{{"tCustomIntroOutroSettings.bNotifyOps", "0"},
                         {"tCustomIntroOutroSettings.tEnabledProfiles.-1", "1"},
                         {"tCustomIntroOutroSettings.tEnabledProfiles.0", "0"},
                         {"tCustomIntroOutroSettings.tEnabledProfiles.1", "0"},
                         {"tCustomIntroOutroSettings.tEnabledProfiles.2", "0"}}));
    EXPECT_EQ(luaValues(golden("CustomIntro.save.tbl")),
              (LuaValues{{"tCustomIntro.merle", "Merle walks through the wall"},
                         {"tCustomIntro.bob", "Bob is back"}}));
    const auto intros = luaValues(golden("Intro.restored.tbl"));
    EXPECT_EQ(intros.size(), 14U);
    EXPECT_EQ(intros.at("tIntro.1"), "!username! appears in a blaze of octarine");
    EXPECT_EQ(intros.at("tIntro.3"), "Like a demon, !username! materialises in the hub");
    const auto outros = luaValues(golden("Outro.restored.tbl"));
    EXPECT_EQ(outros.size(), 18U);
    EXPECT_EQ(outros.at("tOutro.2"), "With a burst of flame, the dragon incinerates !username!");
}

TEST(IntrosOutros, RestoreTheLinesThatCameWithThem)
{
    test::Hub hub{"CustomiseUser/IntroOutro"};
    const auto restore = [&hub](const RowListGroup& group) {
        std::vector<std::vector<CellRow>> rows;
        for (const RowListDeclaration& list : group.lists)
            rows.push_back(list.restored(hub.profiles));
        group.save(hub.files, rows);
    };
    restore(standardIntrosOutros().lines);
    restore(customIntrosOutros().lines);
    for (const std::string name : {"Intro", "Outro", "CustomIntro", "CustomOutro"})
        EXPECT_TRUE(test::sameBytes(hub.file("CustomiseUser/IntroOutro/" + name + ".tbl"),
                                    test::golden("customise/" + name + ".restored.tbl")));
}

} // namespace
} // namespace quillfen
