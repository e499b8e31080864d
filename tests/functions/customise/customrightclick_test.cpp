#include "functions/customise/customisetest.h"
#include "functions/customise/customrightclick.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

const char* const commandsFile = "CustomRightClick/CustomRightClick.tbl";

class CustomRightClicks : public test::CustomiseFiles
{
protected:
    std::vector<CellRow> load() { return customRightClicks(hub.profiles).load(hub.files, hub.profiles); }

    std::vector<CellRow> loadFrom(const std::string& text)
    {
        file(commandsFile) = text;
        return load();
    }

    std::string saved(const std::vector<CellRow>& list)
    {
        customRightClicks(hub.profiles).save(hub.files, hub.profiles, list);
        return file(commandsFile);
    }

    /// A file of one row with this place and this profile.
    static std::string oneRow(const std::string& where, const std::string& profile)
    {
        return "tCustomRightClick = {\r\n\tiCommands = 1,\r\n\t[1] = {\r\n\t\t\tbEnabled = "
               "0,\r\n\t\t\tiWhere = " +
               where + ",\r\n\t\t\tsProfile = " + profile +
               ",\r\n\t\t\tsRightClick = \"x\",\r\n\t},\r\n}\r\n";
    }

    const std::vector<CellRow> rows = {{{"Tools\\Who = where", "Operators Only", "Hub"}, true},
                                       {{"Wave", "All Profiles", "Users"}},
                                       {{"Register", "Unregistered", "Hub & Users"}, true},
                                       {{"Find more", "Operator", "Search"}}};
};

TEST_F(CustomRightClicks, AFreshBuildWritesAnEmptyTableWithoutACountWhichReadsAsNoRows)
{
    buildFunction(customRightClickFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(file(commandsFile), "tCustomRightClick = {\r\n}\r\n"));
    EXPECT_EQ(luaValues(file(commandsFile)), (LuaValues{{"tCustomRightClick", "{}"}}));
    EXPECT_TRUE(load().empty());
}

TEST_F(CustomRightClicks, ARebuildLeavesTheFile)
{
    file(commandsFile) = golden("CustomRightClick.save.tbl");
    buildFunction(customRightClickFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(file(commandsFile), golden("CustomRightClick.save.tbl")));
}

TEST_F(CustomRightClicks, AreReadInWordsAndWrittenBackByteForByte)
{
    EXPECT_EQ(loadFrom(golden("CustomRightClick.save.tbl")), rows);
    EXPECT_TRUE(sameBytes(saved(rows), golden("CustomRightClick.save.tbl")));
}

TEST_F(CustomRightClicks, AnEmptyListWritesItsCountAndNoBlock)
{
    EXPECT_TRUE(sameBytes(saved({}), "tCustomRightClick = {\r\n\tiCommands = 0,\r\n}\r\n"));
    EXPECT_EQ(luaValues(file(commandsFile)), (LuaValues{{"tCustomRightClick.iCommands", "0"}}));
}

TEST_F(CustomRightClicks, TheHubScriptSeesCountPlacesAndProfiles)
{
    // Lua takes the backslash for its own: nothing is escaped.
    EXPECT_EQ(luaValues(golden("CustomRightClick.save.tbl")),
              (LuaValues{{"tCustomRightClick.iCommands", "4"},
                         {"tCustomRightClick.1.bEnabled", "1"},
                         {"tCustomRightClick.1.iWhere", "1"},
                         {"tCustomRightClick.1.sProfile", "ops"},
                         {"tCustomRightClick.1.sRightClick", "ToolsWho = where"},
                         {"tCustomRightClick.2.bEnabled", "0"},
                         {"tCustomRightClick.2.iWhere", "2"},
                         {"tCustomRightClick.2.sProfile", "all"},
                         {"tCustomRightClick.2.sRightClick", "Wave"},
                         {"tCustomRightClick.3.bEnabled", "1"},
                         {"tCustomRightClick.3.iWhere", "3"},
                         {"tCustomRightClick.3.sProfile", "-1"},
                         {"tCustomRightClick.3.sRightClick", "Register"},
                         {"tCustomRightClick.4.bEnabled", "0"},
                         {"tCustomRightClick.4.iWhere", "4"},
                         {"tCustomRightClick.4.sProfile", "1"},
                         {"tCustomRightClick.4.sRightClick", "Find more"}}));
}

TEST_F(CustomRightClicks, TheCountAloneTellsHowManyRowsAreRead)
{
    std::string text = golden("CustomRightClick.save.tbl");
    text.replace(text.find("iCommands = 4"), 13, "iCommands = 2");
    EXPECT_EQ(loadFrom(text), (std::vector<CellRow>{rows[0], rows[1]}));
    text.replace(text.find("iCommands = 2"), 13, "iCommands = 5");
    ASSERT_EQ(loadFrom(text).size(), 5U);
    EXPECT_EQ(load()[4], (CellRow{{"", "", ""}}));
}

TEST_F(CustomRightClicks, ACountBeyondAllReasonReadsNoMoreRowsThanTheFileHasBytes)
{
    const std::string text = "tCustomRightClick = {\r\n\tiCommands = 999999999999,\r\n}\r\n";
    EXPECT_EQ(loadFrom(text).size(), text.size());
    EXPECT_TRUE(loadFrom("tCustomRightClick = {\r\n\tiCommands = -3,\r\n}\r\n").empty());
}

TEST_F(CustomRightClicks, TheKeyOfAProfileThatIsGoneStaysABareNumber)
{
    const std::string text = oneRow("1", "7");
    const auto read = loadFrom(text);
    EXPECT_EQ(read.at(0).cells, (std::vector<std::string>{"x", "7", "Hub"}));
    EXPECT_TRUE(sameBytes(saved(read), text));
    const auto last = static_cast<int>(hub.profiles.count()) - 2; // the key of the first row is -1
    EXPECT_EQ(loadFrom(oneRow("1", std::to_string(last))).at(0).cells[1], hub.profiles.names().back());
    EXPECT_EQ(loadFrom(oneRow("1", std::to_string(last + 1))).at(0).cells[1], std::to_string(last + 1));
}

TEST_F(CustomRightClicks, AnyOtherProfileShowsAsItStandsAndStaysQuoted)
{
    const std::string text = oneRow("1", "\"vips\"");
    const auto read = loadFrom(text);
    EXPECT_EQ(read.at(0).cells[1], "vips");
    EXPECT_TRUE(sameBytes(saved(read), text));
}

TEST_F(CustomRightClicks, APlaceThatIsNoneOfTheFourStaysAndOneThatIsMissingIsWrittenAsZero)
{
    for (const char* where : {"0", "5", "-1"}) {
        const std::string text = oneRow(where, "\"all\"");
        const auto read = loadFrom(text);
        EXPECT_EQ(read.at(0).cells[2], where);
        EXPECT_TRUE(sameBytes(saved(read), text));
    }
    const auto read = loadFrom("tCustomRightClick = {\r\n\tiCommands = 1,\r\n}\r\n");
    EXPECT_EQ(luaValues(saved(read)).at("tCustomRightClick.1.iWhere"), "0");
}

TEST_F(CustomRightClicks, AProfileIsFoundByItsKeyAmongSixtyFour)
{
    for (std::size_t more = hub.profiles.count(); more < 65; ++more)
        hub.profiles.add("Profile " + std::to_string(more));
    EXPECT_EQ(loadFrom(oneRow("2", "63")).at(0).cells[1], "Profile 64");
    EXPECT_TRUE(sameBytes(saved(load()), oneRow("2", "63")));
    EXPECT_EQ(customRightClicks(hub.profiles).dialog.entries.at(0).size(), 67U);
}

TEST_F(CustomRightClicks, FiftyThousandRowsAreWrittenAndReadBackWhole)
{
    std::vector<CellRow> many;
    for (int row = 0; row < 50000; ++row)
        many.push_back({{"Line " + std::to_string(row), "VIP", "Search"}, row % 2 == 0});
    saved(many);
    EXPECT_EQ(load(), many); // beyond the 5000 lines that other settings are read to
}

} // namespace
} // namespace quillfen
