#include "functions/general/languages.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::sameBytes;

class Languages : public testing::Test
{
protected:
    test::Hub hub{"Language/Commands", "Language/Commands/Files"};
    const LanguageSet& commands = languageSets()[0];
    std::string& list = hub.file("Language/Commands/CommandLanguages.tbl");
};

TEST_F(Languages, TheCurrentOneStandsAtItsPlaceAndTheOthersAreNumberedWithoutAGap)
{
    const std::vector<CellRow> rows = {{{"DEFAULT"}}, {{"german"}, true}, {{"FRENCH"}}};
    saveLanguages(hub.files, commands, rows);
    EXPECT_TRUE(sameBytes(list, "tCommandLanguages = {\r\n\t[1] = \"DEFAULT\",\r\n\tCurrent = \"german\",\r\n"
                                "\t[2] = \"FRENCH\",\r\n}\r\n"));
    EXPECT_EQ(loadLanguages(hub.files, commands), rows);
    EXPECT_EQ(test::luaValues(list), (test::LuaValues{{"tCommandLanguages.1", "DEFAULT"},
                                                      {"tCommandLanguages.2", "FRENCH"},
                                                      {"tCommandLanguages.Current", "german"}}));
}

TEST_F(Languages, WithoutACheckedOneNoCurrentLineIsWritten)
{
    saveLanguages(hub.files, commands, {{{"DEFAULT"}}});
    EXPECT_TRUE(sameBytes(list, "tCommandLanguages = {\r\n\t[1] = \"DEFAULT\",\r\n}\r\n"));
}

TEST_F(Languages, AMissingListIsEmpty)
{
    EXPECT_TRUE(loadLanguages(hub.files, commands).empty());
    EXPECT_TRUE(loadReferenceTexts(hub.files, commands).empty());
}

TEST_F(Languages, ALanguageIsLaidOverTheReference)
{
    hub.file("Language/Commands/Files/DEFAULT.tbl") =
        "tScriptCommands = {\r\n\tsHelp = \"help\",\r\n\tsKick = \"kick\",\r\n\tsBan = \"ban\",\r\n}\r\n";
    hub.file("Language/Commands/Files/german.tbl") =
        "tScriptCommands = {\r\n\tsKick = \"tritt\",\r\n\tsExtra = \"weg\",\r\n\tsHelp = \"hilfe\",\r\n}\r\n";
    const auto rows = loadLanguageTexts(hub.files, commands, "german");
    EXPECT_EQ(rows, (std::vector<CellRow>{{{"sHelp", "hilfe"}}, {{"sKick", "tritt"}}, {{"sBan", "ban"}}}));
    saveLanguageTexts(hub.files, commands, "german", rows);
    EXPECT_TRUE(sameBytes(hub.file("Language/Commands/Files/german.tbl"),
                          "tScriptCommands = {\r\n\tsHelp = \"hilfe\",\r\n\tsKick = \"tritt\",\r\n"
                          "\tsBan = \"ban\",\r\n}\r\n"));
    EXPECT_EQ(test::luaValues(hub.file("Language/Commands/Files/german.tbl")).at("tScriptCommands.sBan"),
              "ban");
}

TEST_F(Languages, AFileThatDiffersInCaseAloneIsTheLanguages)
{
    hub.file("Language/Commands/Files/Default.TBL") = "tScriptCommands = {\r\n\tsHelp = \"help\",\r\n}\r\n";
    hub.file("Language/Commands/Files/FRENCH.TBL") = "tScriptCommands = {\r\n\tsHelp = \"aide\",\r\n}\r\n";
    EXPECT_EQ(loadLanguageTexts(hub.files, commands, "FRENCH"), (std::vector<CellRow>{{{"sHelp", "aide"}}}));
}

TEST_F(Languages, EachSetHasItsOwnFilesAndTables)
{
    struct Expected
    {
        std::string_view list, table, folder, texts;
    };
    const Expected expected[] = {
        {R"(Language\Commands\CommandLanguages.tbl)", "tCommandLanguages", R"(Language\Commands\Files\)",
         "tScriptCommands"},
        {R"(Language\RightClick\RightClickLanguages.tbl)", "tRightClickLanguages",
         R"(Language\RightClick\Files\)", "tScriptRightClick"},
        {R"(Language\Messages\MessageLanguages.tbl)", "tMessageLanguages", R"(Language\Messages\Files\)",
         "tScriptMessages"},
    };
    ASSERT_EQ(languageSets().size(), 3U);
    for (std::size_t at = 0; at < 3; ++at) {
        EXPECT_EQ(languageSets()[at].listFile, expected[at].list);
        EXPECT_EQ(languageSets()[at].listTable, expected[at].table);
        EXPECT_EQ(languageSets()[at].folder, expected[at].folder);
        EXPECT_EQ(languageSets()[at].textTable, expected[at].texts);
    }
}

TEST(LanguageSets, HaveWordsOfTheirOwn)
{
    using Words = std::vector<std::string_view>;
    const Words told[] = {
        {"Command ID", "Command", "Add New Command",
         "Enter name of new Command File:", " already exists as a Command Language File",
         "DEFAULT Command File cannot be deleted", "Edit Command", "Command"},
        {"RightClick ID", "RightClick", "Add New RightClick",
         "Enter name of new RightClick:", " already exists as a RightClick Language File",
         "DEFAULT RightClick cannot be deleted", "Edit RightClick", "RightClick"},
        // The messages' form has some words of the commands'.
        {"Message ID", "Message", "Add New Command",
         "Enter name of new Message File:", " already exists as a Message Language File",
         "DEFAULT Command File cannot be deleted", "Edit Message", "Message"},
    };
    for (std::size_t at = 0; at < 3; ++at) {
        const LanguageSet& set = languageSets()[at];
        EXPECT_EQ((Words{set.keyColumn, set.textColumn, set.newTitle, set.newPrompt, set.duplicateTail,
                         set.deleteRefusal, set.editTitle, set.editLabel}),
                  told[at]);
        EXPECT_EQ(languageLists(set).rows.dialog.labels,
                  std::vector<std::string>{std::string(told[at].back())});
        const ListedFiles files = languageLists(set);
        EXPECT_EQ(files.names.list, "lvwFiles");
        EXPECT_EQ(files.names.toolbar, "tlbFiles");
        EXPECT_EQ(files.names.deletion.text, "Are you sure you wish to delete ");
        EXPECT_EQ(files.rows.list, "lvwTexts");
        EXPECT_EQ(files.rows.toolbar, "tlbTexts");
        EXPECT_EQ(files.rows.columns,
                  (std::vector<std::string>{std::string(set.keyColumn), std::string(set.textColumn)}));
    }
}

} // namespace
} // namespace quillfen
