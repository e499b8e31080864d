#include "settings/filename.h"
#include "settings/listdeclaration.h"
#include "settings/listfile.h"
#include "settings/permissiongrid.h"
#include "support/hub.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

class ListFiles : public testing::Test
{
protected:
    /// The file's bytes are what its rows are saved as, and its rows are what its bytes are loaded as.
    void expectBothWays(ListFile::Form form, const std::vector<ListRow>& rows, const std::string& bytes)
    {
        const ListFile file{"A.tbl", "tList", form};
        saveList(hub.files, file, rows);
        EXPECT_EQ(hub.file("A.tbl"), bytes);
        EXPECT_EQ(loadList(hub.files, file), rows);
    }

    test::Hub hub;
};

TEST_F(ListFiles, PlainRows)
{
    expectBothWays(ListFile::Form::Plain, {{"one"}, {"two, three"}},
                   "tList = {\r\n\t\"one\",\r\n\t\"two, three\",\r\n}\r\n");
}

TEST_F(ListFiles, KeyedRows)
{
    expectBothWays(ListFile::Form::Keyed, {{"teh", "the"}, {"x", ""}},
                   "tList = {\r\n\t[\"teh\"] = \"the\",\r\n\t[\"x\"] = \"\",\r\n}\r\n");
}

TEST_F(ListFiles, NumberedRowsCountFromOneAndShowTheirTexts)
{
    expectBothWays(ListFile::Form::Numbered, {{"first"}, {"second"}},
                   "tList = {\r\n\t[1] = \"first\",\r\n\t[2] = \"second\",\r\n}\r\n");
}

TEST_F(ListFiles, PresenceRows)
{
    expectBothWays(ListFile::Form::Presence, {{"user"}}, "tList = {\r\n\t[\"user\"] = 1,\r\n}\r\n");
}

TEST_F(ListFiles, FlagRowsLoseAndGetBackTheirLetter)
{
    expectBothWays(ListFile::Form::Flags, {{"Main", "", true}, {"PM", "", false}},
                   "tList = {\r\n\tbMain = 1,\r\n\tbPM = 0,\r\n}\r\n");
}

TEST_F(ListFiles, AnEmptyListIsTheTablesLineAndItsBrace)
{
    expectBothWays(ListFile::Form::Plain, {}, "tList = {\r\n}\r\n");
}

TEST_F(ListFiles, ContentIsWrittenOnlyWhereThereIsNone)
{
    writeEmptyTableIfMissing(hub.files, "A.tbl", "tA");
    EXPECT_EQ(hub.file("A.tbl"), "tA = {\r\n}\r\n");
    hub.file("A.tbl") = "mine";
    writeEmptyTableIfMissing(hub.files, "A.tbl", "tA");
    EXPECT_EQ(hub.file("A.tbl"), "mine");
}

TEST_F(ListFiles, ADeclaredListLoadsAndSavesItsCells)
{
    const ListFile file{"A.tbl", "tList", ListFile::Form::Keyed};
    const std::vector<CellRow> rows = {{{"a", "b"}}};
    saveOf(file)(hub.files, hub.profiles, rows);
    EXPECT_EQ(hub.file("A.tbl"), "tList = {\r\n\t[\"a\"] = \"b\",\r\n}\r\n");
    EXPECT_EQ(loadOf(file)(hub.files, hub.profiles), rows);
}

TEST(FileNames, ThatNoFileCanBearAreFaulty)
{
    for (const char* name :
         {"",   ".",  "..",   "a/b", "a\\b", "..\\x", "c:x", "a*",  "a?",       "\"a", "a<",
          "a>", "a|", "a\tb", " a",  "a ",   "a.",    "con", "NUL", "com1.txt", "Lpt9"})
        EXPECT_NE(fileNameFault(name), "") << name;
    EXPECT_NE(fileNameFault(std::string(300, 'x')), "");
    for (const char* name :
         {"a", "TriviaQuestions", "my words 2", "caf\xE9", "a.b", "control", ".hidden", "it's"})
        EXPECT_EQ(fileNameFault(name), "") << name;
}

TEST(FileNames, ChangeTheirCaseInTheCodePage)
{
    EXPECT_EQ(lowered("FOO \xC9\x8A\x9F\xD7"), "foo \xE9\x9A\xFF\xD7");
    EXPECT_EQ(raised("foo \xE9\x9A\xFF\xF7\xDF"), "FOO \xC9\x8A\x9F\xF7\xDF");
}

class Grid : public testing::Test
{
protected:
    Grid() { hub.profiles.add("Master"); }

    static bool isAllowed(const std::vector<PermissionCell>& cells, std::size_t command, std::size_t by,
                          std::size_t on)
    {
        for (const PermissionCell& cell : cells) {
            if (cell.command == command && cell.by == by && cell.on == on)
                return cell.allowed;
        }
        throw std::out_of_range("no such cell");
    }

    test::Hub hub;
    PermissionGrid grid{{{"Kick", "Kick.tbl", "tKick"}, {"Ban", "Ban.tbl", "tBan"}}};
};

TEST_F(Grid, HasACellForEachCommandActingAndTargetProfile)
{
    hub.file("Kick.tbl") = "tKick = {\r\n\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t},\r\n"
                           "\t[0] = {\r\n\t\t[-1] = 1.0,\r\n\t\t[0] = 2,\r\n\t},\r\n}\r\n";
    const auto cells = loadGrid(grid, hub.files, hub.profiles);
    ASSERT_EQ(cells.size(), 8U);
    EXPECT_FALSE(isAllowed(cells, 0, 0, 0));
    EXPECT_TRUE(isAllowed(cells, 0, 0, 1));
    EXPECT_TRUE(isAllowed(cells, 0, 1, 0));
    EXPECT_FALSE(isAllowed(cells, 0, 1, 1)); // only the number 1 allows
    EXPECT_FALSE(isAllowed(cells, 1, 0, 1)); // a missing file allows nothing
    EXPECT_EQ(hub.store.readings[hub.root + "/Kick.tbl"], 1);
}

TEST_F(Grid, SavesEachCommandsSquare)
{
    auto cells = loadGrid(grid, hub.files, hub.profiles);
    cells[1].allowed = true;
    cells[6].allowed = true;
    saveGrid(grid, cells, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Kick.tbl"), "tKick = {\r\n\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t},\r\n"
                                    "\t[0] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n");
    EXPECT_EQ(hub.file("Ban.tbl"), "tBan = {\r\n\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n"
                                   "\t[0] = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n");
}

TEST_F(Grid, ARebuildKeepsEachValueAndGivesANewProfileNone)
{
    hub.file("Kick.tbl") = "tKick = {\r\n\t[-1] = {\r\n\t\t[-1] = 1,\r\n\t},\r\n}\r\n";
    rebuildGridFile(grid.commands[0], 0, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Kick.tbl"), "tKick = {\r\n\t[-1] = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n\t},\r\n"
                                    "\t[0] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n");
}

TEST_F(Grid, MayLeaveTheUnregisteredOut)
{
    grid.firstProfile = 1;
    EXPECT_EQ(loadGrid(grid, hub.files, hub.profiles).size(), 2U);
    rebuildGridFile(grid.commands[0], 1, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Kick.tbl"), "tKick = {\r\n\t[0] = {\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n");
}

} // namespace
} // namespace quillfen
