#include "functions/security/securitytest.h"
#include "functions/security/spies.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class Spies : public test::SecurityFiles
{
protected:
    std::string& commands = file("CommandSpy/CommandSpySettings.tbl");
    std::string& searches = file("SearchSpy/SearchSpySettings.tbl");

    void build()
    {
        buildFunction(commandSpyFunction(), hub.files, hub.profiles);
        buildFunction(searchSpyFunction(), hub.files, hub.profiles);
    }
};

TEST_F(Spies, AFreshBuildWritesTheDefaultsAndEmptyTables)
{
    build();
    EXPECT_TRUE(sameBytes(commands, golden("CommandSpy.build.tbl")));
    EXPECT_TRUE(sameBytes(searches, golden("SearchSpy.build.tbl")));
    EXPECT_EQ(file("CommandSpy/CommandSpyUsers.tbl"), "tCommandSpyUsers = {\r\n}\r\n");
    EXPECT_EQ(file("SearchSpy/SearchSpyFiles.tbl"), "tSearchSpyFiles = {\r\n}\r\n");
}

TEST_F(Spies, ARebuildKeepsWhatIsThereAndPutsTheImmuneProfilesFirst)
{
    commands = golden("CommandSpy.save.tbl");
    searches = golden("SearchSpy.save.tbl");
    file("CommandSpy/CommandSpyUsers.tbl") = "tCommandSpyUsers = {\r\n\t[\"Ann\"] = 1,\r\n}\r\n";
    file("SearchSpy/SearchSpyFiles.tbl") = golden("SearchSpyFiles.save.tbl");
    build();
    EXPECT_TRUE(sameBytes(commands, golden("CommandSpy.save.tbl")));
    EXPECT_TRUE(sameBytes(searches, golden("SearchSpy.rebuild.tbl")));
    EXPECT_EQ(file("CommandSpy/CommandSpyUsers.tbl"), "tCommandSpyUsers = {\r\n\t[\"Ann\"] = 1,\r\n}\r\n");
    EXPECT_TRUE(sameBytes(file("SearchSpy/SearchSpyFiles.tbl"), golden("SearchSpyFiles.save.tbl")));
}

TEST_F(Spies, ASearchTermKnowsFiveActionsAndNoBanForATime)
{
    std::string& terms = file("SearchSpy/SearchSpyFiles.tbl");
    terms = "tSearchSpyFiles = {\r\n";
    for (const char* letter : {"D", "W", "N", "K", "B", "T", "x"})
        terms.append("\t[\"term\"] = \"").append(letter).append("\",\r\n");
    terms += "}\r\n";
    const auto rows = forbiddenFiles().load(hub.files, hub.profiles);
    std::vector<std::string> words;
    for (const CellRow& row : rows)
        words.push_back(row.cells.at(1));
    EXPECT_EQ(words, (std::vector<std::string>{"Disconnect", "Warn", "Notify Ops", "Kick", "Ban", "", ""}));
}

TEST_F(Spies, TheHubScriptSeesTheirValues)
{
    EXPECT_EQ(luaValues(golden("SearchSpyFiles.save.tbl")), (LuaValues{{"tSearchSpyFiles.bad film", "K"},
                                                                       {"tSearchSpyFiles.worse", "B"},
                                                                       {"tSearchSpyFiles.worst", "N"}}));
    const auto saved = luaValues(golden("SearchSpy.save.tbl"));
    EXPECT_EQ(saved.size(), 8U);
    EXPECT_EQ(saved.at("tSearchSpySettings.tAllowedProfiles.2"), "1");
    EXPECT_EQ(saved.at("tSearchSpySettings.tImmuneProfiles.-1"), "1");
    EXPECT_EQ(saved, luaValues(golden("SearchSpy.rebuild.tbl")));
    EXPECT_EQ(luaValues(golden("CommandSpy.save.tbl")),
              (LuaValues{{"tCommandSpySettings.tEnabledProfiles.-1", "0"},
                         {"tCommandSpySettings.tEnabledProfiles.0", "1"},
                         {"tCommandSpySettings.tEnabledProfiles.1", "0"},
                         {"tCommandSpySettings.tEnabledProfiles.2", "1"}}));
}

} // namespace
} // namespace quillfen
