#include "functions/customise/customisetest.h"
#include "functions/customise/descriptiontags.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class DescriptionTags : public test::CustomiseFiles
{
protected:
    std::string& settings = file("DescriptionTags/DescriptionTagSettings.tbl");

    void build() { buildFunction(descriptionTagsFunction(), hub.files, hub.profiles); }

    std::vector<std::string> tags()
    {
        std::vector<std::string> all;
        for (const CellRow& row : descriptionTags().load(hub.files, hub.profiles))
            all.push_back(row.cells.at(1));
        return all;
    }
};

TEST_F(DescriptionTags, OnAFreshTreeEachProfilesTagIsItsNameInBrackets)
{
    build();
    EXPECT_TRUE(sameBytes(settings, golden("DescriptionTagSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(file("DescriptionTags/DescriptionTags.tbl"), "tDescriptionTags = {\r\n}\r\n"));
}

TEST_F(DescriptionTags, ARebuildPutsTheFlagBackTurnsTheTablesRoundAndTagsANewProfile)
{
    settings = golden("DescriptionTagSettings.save.tbl");
    file("DescriptionTags/DescriptionTags.tbl") = "the script's";
    hub.profiles.add("Reg");
    build();
    EXPECT_TRUE(sameBytes(settings, golden("DescriptionTagSettings.rebuild.tbl")));
    EXPECT_EQ(file("DescriptionTags/DescriptionTags.tbl"), "the script's");
    build();
    EXPECT_TRUE(sameBytes(settings, golden("DescriptionTagSettings.rebuild.tbl")));
}

TEST_F(DescriptionTags, ARebuildKeepsTheFlagThatItFinds)
{
    settings = golden("DescriptionTagSettings.build.tbl");
    settings.replace(settings.find("bNotifyOps = 1"), 14, "bNotifyOps = 0");
    build();
    EXPECT_EQ(luaValues(settings).at("tDescriptionTagSettings.bNotifyOps"), "0");
}

TEST_F(DescriptionTags, AMissingTagGetsItsNameInARebuildWhicheverTableStandsBehind)
{
    for (const char* order : {"DescriptionTagSettings.build.tbl", "DescriptionTagSettings.save.tbl"}) {
        settings = golden(order);
        const auto row = settings.find("\t\t[1] = \"[Operator]\",\r\n");
        settings.erase(row, settings.find('\n', row) - row + 1);
        build();
        EXPECT_EQ(luaValues(settings).at("tDescriptionTagSettings.tProfiles.1"), "[Operator]") << order;
    }
}

TEST_F(DescriptionTags, TagsAreKeptAndFilledInWhicheverKeysTheTableInFrontHas)
{
    settings = "tDescriptionTagSettings = {\r\n\ttEnabledProfiles = {\r\n\t\t[1] = 0,\r\n\t},\r\n"
               "\ttProfiles = {\r\n\t\t[0] = \"[Boss]\",\r\n\t},\r\n}\r\n";
    build();
    EXPECT_NE(settings.find("\ttProfiles = {\r\n\t\t[-1] = \"[Unregistered]\",\r\n\t\t[0] = \"[Boss]\",\r\n"
                            "\t\t[1] = \"[Operator]\",\r\n"),
              std::string::npos);
}

TEST_F(DescriptionTags, ARebuildOfAnEmptyTableOfTagsWritesTheNames)
{
    settings = "tDescriptionTagSettings = {\r\n\tbNotifyOps = 1,\r\n\ttProfiles = {\r\n\t},\r\n"
               "\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t\t[1] = 0,\r\n\t\t[2] = 0,\r\n"
               "\t},\r\n}\r\n";
    build();
    EXPECT_TRUE(sameBytes(settings, golden("DescriptionTagSettings.build.tbl")));
}

TEST_F(DescriptionTags, ATagWithAnEqualsSignIsKeptByARebuildAndCutByTheForm)
{
    settings = "tDescriptionTagSettings = {\r\n\ttProfiles = {\r\n\t\t[0] = \"a=b\",\r\n\t},\r\n}\r\n";
    EXPECT_EQ(tags(), (std::vector<std::string>{"", "a", "", ""}));
    build();
    EXPECT_EQ(luaValues(settings).at("tDescriptionTagSettings.tProfiles.0"), "a=b");
}

TEST_F(DescriptionTags, ATagBelongsToItsKeyAndThoseOfProfilesThatAreGoneAreLeftOut)
{
    settings =
        "tDescriptionTagSettings = {\r\n\ttProfiles = {\r\n\t\t[7] = \"old\",\r\n\t\t[2] = \"two\",\r\n"
        "\t\t[-1] = \"none\",\r\n\t},\r\n}\r\n";
    EXPECT_EQ(tags(), (std::vector<std::string>{"none", "", "", "two"}));
}

TEST_F(DescriptionTags, ASaveWritesTheProfilesFirstAndNoFlag)
{
    const std::string& enabled = keyOf(taggedProfiles().settings.front());
    const SettingValues tagged = {{profileRow(enabled, 0), "0"},
                                  {profileRow(enabled, 1), "1"},
                                  {profileRow(enabled, 2), "1"},
                                  {profileRow(enabled, 3), "0"}};
    saveDescriptionTags(tagged,
                        {{{"Unregistered", "[Unregistered]"}},
                         {{"Master", "[Boss]"}},
                         {{"Operator", "[Operator]"}},
                         {{"VIP", "<guest>"}}},
                        hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("DescriptionTagSettings.save.tbl")));
}

TEST_F(DescriptionTags, TheHubScriptSeesWhatIsBuiltAndSaved)
{
    EXPECT_EQ(luaValues(golden("DescriptionTagSettings.build.tbl")),
              (LuaValues{{"tDescriptionTagSettings.bNotifyOps", "1"},
                         {"tDescriptionTagSettings.tProfiles.-1", "[Unregistered]"},
                         {"tDescriptionTagSettings.tProfiles.0", "[Master]"},
                         {"tDescriptionTagSettings.tProfiles.1", "[Operator]"},
                         {"tDescriptionTagSettings.tProfiles.2", "[VIP]"},
                         {"tDescriptionTagSettings.tEnabledProfiles.-1", "0"},
                         {"tDescriptionTagSettings.tEnabledProfiles.0", "0"},
                         {"tDescriptionTagSettings.tEnabledProfiles.1", "0"},
                         {"tDescriptionTagSettings.tEnabledProfiles.2", "0"}}));
    const auto saved = luaValues(golden("DescriptionTagSettings.save.tbl"));
    EXPECT_EQ(saved.size(), 8U);
    EXPECT_EQ(saved.count("tDescriptionTagSettings.bNotifyOps"), 0U);
    EXPECT_EQ(saved.at("tDescriptionTagSettings.tProfiles.2"), "<guest>");
    EXPECT_EQ(saved.at("tDescriptionTagSettings.tEnabledProfiles.1"), "1");
}

TEST_F(DescriptionTags, ATagWithADoubleQuoteBreaksTheLineForTheHubScript)
{
    const std::string& enabled = keyOf(taggedProfiles().settings.front());
    hub.profiles = HubProfiles();
    saveDescriptionTags({{profileRow(enabled, 0), "0"}}, {{{"Unregistered", "a\"b"}}}, hub.files,
                        hub.profiles);
    EXPECT_TRUE(sameBytes(settings, "tDescriptionTagSettings = {\r\n\ttEnabledProfiles = {\r\n"
                                    "\t\t[-1] = 0,\r\n\t},\r\n\ttProfiles = {\r\n\t\t[-1] = \"a\"b\",\r\n"
                                    "\t},\r\n}\r\n"));
    EXPECT_THROW(luaValues(settings), std::runtime_error);
}

} // namespace
} // namespace quillfen
