#include "declarations/listdeclaration.h"
#include "settings/listfile.h"
#include "settings/tablefile.h"
#include "support/hub.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

class Lists : public testing::Test
{
protected:
    std::vector<ListRow> list(const std::string& bytes, const char* delimiter, const char* table = "",
                              Rows rows = Rows::Plain)
    {
        hub.file("A.tbl") = bytes;
        std::vector<ListRow> result;
        hub.files.ReadTableToList("A.tbl", result, delimiter, table, rows);
        return result;
    }

    static std::vector<std::string> texts(const std::vector<ListRow>& rows)
    {
        std::vector<std::string> all;
        for (const ListRow& row : rows)
            all.push_back(row.text);
        return all;
    }

    test::Hub hub;
};

using Texts = std::vector<std::string>;

TEST_F(Lists, PlainRowsOfATable)
{
    EXPECT_EQ(texts(list("tTopics = {\r\n\t\"one\",\r\n\r\n\t\"two, three\",\r\n}\r\n", "", "tTopics")),
              (Texts{"one", "two, three"}));
}

TEST_F(Lists, PlainRowsEndAtTheClosingBraceOfTheirTable)
{
    const std::string bytes = "t1 = {\r\n\t\"a\",\r\n}\r\nt2 = {\r\n\t\"b\",\r\n}\r\n";
    EXPECT_EQ(texts(list(bytes, "", "t1")), Texts{"a"});
    EXPECT_EQ(texts(list(bytes, "", "t2")), Texts{"b"});
}

TEST_F(Lists, PlainRowsKeepOutALineThatEndsInT)
{
    EXPECT_EQ(texts(list("t = {\r\n\t\"a\",\r\nreturn t\r\n}", "", "t")), Texts{"a"});
}

TEST_F(Lists, PlainRowsWithoutATableAreAllLinesButTheBrace)
{
    EXPECT_EQ(texts(list("\"a\",\r\n\r\nreturn t\r\n}\r\n[b]", "")), (Texts{"a", "return t", "b"}));
}

TEST_F(Lists, ALineThatNamesTheTableAgainIsARowToo)
{
    EXPECT_EQ(texts(list("t = {\r\n\tt = 1,\r\n}", "", "t")), Texts{"t = 1"});
}

TEST_F(Lists, KeyRowsFillTwoColumns)
{
    const std::vector<ListRow> expected = {{"abc", "1^2"}, {"d", "x"}};
    EXPECT_EQ(list("t = {\r\n\t[\"abc\"] = \"1^2\",\r\n\td = \"x\",\r\n}", "=", "t"), expected);
}

TEST_F(Lists, AKeyRowsValueIsCutAtItsSecondEqualsSign)
{
    EXPECT_EQ(list("t = {\r\n\ts = \"a=b\",\r\n}", "=", "t"), (std::vector<ListRow>{{"s", "a"}}));
}

TEST_F(Lists, ALineWithoutTheDelimiterIsARowWhereUndividedOnesCount)
{
    EXPECT_EQ(list("a*1\r\nb\r\n\r\nc*2\r\n", "*", "", Rows::Undivided),
              (std::vector<ListRow>{{"a", "1"}, {"b"}, {"c", "2"}}));
    EXPECT_EQ(list("a*1\r\nb\r\n", "*", ""), (std::vector<ListRow>{{"a", "1"}}));
}

TEST_F(Lists, CheckedRowsAreTickedForExactlyOne)
{
    const std::vector<ListRow> expected = {
        {"bA", "", true}, {"bB", "", false}, {"bC", "", false}, {"bD", "", true}};
    EXPECT_EQ(
        list("t = {\r\n\tbA = 1,\r\n\tbB = 0,\r\n\tbC = 2,\r\n\tbD = 1.0,\r\n}", "=", "t", Rows::Checked),
        expected);
}

TEST_F(Lists, NestedOpeningLinesAndLinesThatEndInTAreNoRows)
{
    EXPECT_EQ(texts(list("t = {\r\n\ttN = {\r\n\ta = 1,\r\nb = t\r\n}", "=", "t")), Texts{"a"});
}

TEST_F(Lists, RowsOutsideTheNamedTableAreNotTaken)
{
    const std::string bytes = "t1 = {\r\n\ta = 1,\r\n\tb = 2,\r\n}\r\nt2 = {\r\n\tc = 3,\r\n}\r\n";
    EXPECT_EQ(texts(list(bytes, "=", "t1")), (Texts{"a", "b"}));
    EXPECT_EQ(texts(list(bytes, "=", "t2")), Texts{"c"});
    EXPECT_EQ(texts(list(bytes, "=", "t3")), Texts{});
}

TEST_F(Lists, TheRowsBehindAnEmptyTableAreTakenInItsPlace)
{
    EXPECT_EQ(texts(list("t1 = {\r\n}\r\nt2 = {\r\n\tc = 3,\r\n\td = 4,\r\n}\r\n", "=", "t1")),
              (Texts{"c", "d"}));
}

TEST_F(Lists, AKeyRowWhoseValueIsAClosingBraceIsNotTakenAndEndsNothing)
{
    EXPECT_EQ(texts(list("t = {\r\n\ta = },\r\n\tb = 1,\r\n}\r\n", "=", "t")), Texts{"b"});
}

TEST_F(Lists, WithoutATableEveryKeyRowIsTaken)
{
    EXPECT_EQ(texts(list("t1 = {\r\n\ta = 1,\r\n}\r\nb = 2\r\nno delimiter\r\n", "=")), (Texts{"a", "b"}));
}

TEST_F(Lists, AListFileSplitsAtTheAsteriskAndKeepsTwoPieces)
{
    const std::vector<ListRow> expected = {{"Misc:Who=what", "binkie"}, {"a", "b"}};
    EXPECT_EQ(list("Misc:Who=what*binkie\r\nno piece\r\na*b*c\r\n", "*"), expected);
}

TEST_F(Lists, ARowOfAListFileThatEndsInTIsNotTaken)
{
    EXPECT_EQ(texts(list("Misc:Who*mort\r\nMisc:What*mord\r\n", "*")), Texts{"Misc:What"});
}

TEST_F(Lists, RowsJoinThoseThatAreThere)
{
    hub.file("A.tbl") = "t = {\r\n\ta = 1,\r\n}";
    std::vector<ListRow> rows = {{"first"}};
    hub.files.ReadTableToList("A.tbl", rows, "=", "t");
    EXPECT_EQ(texts(rows), (Texts{"first", "a"}));
}

TEST_F(Lists, AMissingFileLeavesTheListAsItIs)
{
    std::vector<ListRow> rows = {{"first"}};
    hub.files.ReadTableToList("No.tbl", rows, "=", "t");
    hub.files.ReadListColumn("No.tbl", "t", rows);
    hub.files.ReadFileList("No.tbl", rows, "t");
    EXPECT_EQ(rows, (std::vector<ListRow>{{"first"}}));
}

TEST_F(Lists, HaveNoLineLimit)
{
    std::string bytes = "t = {\r\n";
    for (int row = 0; row < 6000; ++row)
        bytes += "\tk = 1,\r\n";
    EXPECT_EQ(list(bytes, "=", "t").size(), 6000U);
}

TEST_F(Lists, HaveNoTestForAnAbsolutePath)
{
    hub.store.files["C:/elsewhere/A.tbl"] = "a = 1";
    hub.store.files[hub.root + "/C:/elsewhere/A.tbl"] = "b = 1";
    hub.store.files["/hub/scripts/C:/elsewhere/A.tbl"] = "c = 1";
    std::vector<ListRow> rows;
    hub.files.ReadTableToList(R"(C:\elsewhere\A.tbl)", rows, "=");
    hub.files.ReadTableToList(R"(C:\elsewhere\A.tbl)", rows, "=", {}, Rows::Plain, true);
    EXPECT_EQ(texts(rows), (Texts{"b", "c"}));
    rows = {{"a", "mine"}, {"b", "mine"}};
    hub.files.ReadListColumn(R"(C:\elsewhere\A.tbl)", "t", rows);
    EXPECT_EQ(rows, (std::vector<ListRow>{{"a", "mine"}, {"b", "1"}}));
}

TEST_F(Lists, AColumnIsFilledAtTheFirstRowOfTheSameText)
{
    hub.file("G.tbl") =
        "tScriptCommands = {\r\n\thelp = \"hilfe\",\r\n\tgone = \"weg\",\r\n\tkick = \"tritt\",\r\n}";
    std::vector<ListRow> rows = {{"help", "help"}, {"kick", "kick"}, {"kick", "second"}, {"ban", "ban"}};
    hub.files.ReadListColumn("G.tbl", "tScriptCommands", rows);
    EXPECT_EQ(rows, (std::vector<ListRow>{
                        {"help", "hilfe"}, {"kick", "tritt"}, {"kick", "second"}, {"ban", "ban"}}));
}

TEST_F(Lists, AColumnsValueIsCutAtItsSecondEqualsSign)
{
    hub.file("G.tbl") = "t = {\r\n\tsLink = \"a=b\",\r\n}";
    std::vector<ListRow> rows = {{"sLink", "mine"}};
    hub.files.ReadListColumn("G.tbl", "t", rows);
    EXPECT_EQ(rows, (std::vector<ListRow>{{"sLink", "a"}}));
}

TEST_F(Lists, AColumnsTableNameAndBraceAreNoKeys)
{
    hub.file("G.tbl") = "t = {\r\n} = 5\r\n";
    std::vector<ListRow> rows = {{"t", "mine"}, {"}", "mine"}};
    hub.files.ReadListColumn("G.tbl", "t", rows);
    EXPECT_EQ(rows, (std::vector<ListRow>{{"t", "mine"}, {"}", "mine"}}));
}

TEST_F(Lists, FileNamesLoseTheirExtensionIfItIsOneOfThree)
{
    hub.file("F.tbl") =
        "tFiles = {\r\n\t\"a.lst\",\r\n\t\"b.tbl\",\r\n\t\"c.txt\",\r\n\t\"d.asc\",\r\n\te = 1,\r\n\r\n}";
    std::vector<ListRow> rows;
    hub.files.ReadFileList("F.tbl", rows, "tFiles");
    EXPECT_EQ(texts(rows), (Texts{"a", "b", "c", "d.asc", "e"}));
}

TEST_F(Lists, FileNamesAreReadFromAtMost5000Lines)
{
    std::string bytes;
    for (int row = 0; row < 5002; ++row)
        bytes += "\"name.lst\",\r\n";
    hub.file("F.tbl") = bytes;
    std::vector<ListRow> rows;
    hub.files.ReadFileList("F.tbl", rows, "t");
    EXPECT_EQ(rows.size(), 5000U);
}

TEST_F(Lists, FileNamesAreReadFromAnAbsolutePath)
{
    hub.store.files["C:/elsewhere/F.tbl"] = "\"a.lst\",";
    std::vector<ListRow> rows;
    hub.files.ReadFileList(R"(C:\elsewhere\F.tbl)", rows, "t");
    EXPECT_EQ(texts(rows), Texts{"a"});
}

TEST_F(Lists, SeveralListsStandInOneFileInNestedTables)
{
    const NestedListsFile file = {"N.tbl", "tWords", {"tOne", "tTwo", "tThree"}};
    const std::string text = "tWords = {\r\n\ttOne = {\r\n\t\t\"a\",\r\n\t\t\"b\",\r\n\t},\r\n\ttTwo = {\r\n"
                             "\t},\r\n\ttThree = {\r\n\t\t\"c\",\r\n\t},\r\n}";
    EXPECT_EQ(composedNestedLists(file, {{"a", "b"}, {}, {"c"}}), text);
    saveOf(file)(hub.files, {{{{"a"}}, {{"b"}}}, {}, {{{"c"}}}});
    EXPECT_EQ(hub.file("N.tbl"), text + "\r\n");
    EXPECT_EQ(loadOf(file, 0)(hub.files, hub.profiles), (std::vector<CellRow>{{{"a"}}, {{"b"}}}));
    EXPECT_TRUE(loadOf(file, 1)(hub.files, hub.profiles).empty());
    EXPECT_EQ(loadOf(file, 2)(hub.files, hub.profiles), (std::vector<CellRow>{{{"c"}}}));
}

} // namespace
} // namespace quillfen
