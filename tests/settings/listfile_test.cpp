#include "declarations/listdeclaration.h"
#include "settings/listfile.h"
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

} // namespace
} // namespace quillfen
