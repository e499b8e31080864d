#include "settings/tablefile.h"
#include "support/hub.h"
#include "support/plainscan.h"

#include <gtest/gtest.h>
#include <random>

namespace quillfen {
namespace {

std::string valueIn(const std::string& bytes, const std::string& key, const std::string& table = {})
{
    return TableIndex(bytes).value(key, table);
}

std::string linesBefore(std::size_t count)
{
    std::string bytes;
    for (std::size_t at = 0; at < count; ++at)
        bytes += "--\r\n";
    return bytes;
}

TEST(TableValue, ReadsFlagsIntegersAndStrings)
{
    const std::string bytes =
        "tGeneralSettings = {\r\n\tbFlatRC = 0,\r\n\tiDelay = 10,\r\n\tsPrefix = \"+\",\r\n}\r\n";
    EXPECT_EQ(valueIn(bytes, "bFlatRC"), "0");
    EXPECT_EQ(valueIn(bytes, "iDelay"), "10");
    EXPECT_EQ(valueIn(bytes, "sPrefix", "tGeneralSettings"), "+");
}

TEST(TableValue, HoldsFurtherEqualsSigns)
{
    EXPECT_EQ(valueIn("t = {\r\n\tsText = \"a=b=c\",\r\n}", "sText"), "a=b=c");
}

TEST(TableLine, OfAMissingKeyIsNone)
{
    const TableIndex index("t = {\r\n\ta = 1,\r\n}\r\n");
    EXPECT_EQ(index.line("a", "t"), 2U);
    EXPECT_EQ(index.line("b", "t"), 0U);
}

TEST(TableValue, AnEmptyTextReadsLikeAMissingKey)
{
    EXPECT_EQ(valueIn("t = {\r\n\tsBorder = \"\",\r\n}", "sBorder"), "");
    EXPECT_EQ(valueIn("t = {\r\n}", "sBorder"), "");
}

TEST(TableValue, ALineWithoutEqualsHasAnEmptyValue)
{
    EXPECT_EQ(valueIn("sKey\r\nsKey = 5", "sKey"), "");
}

TEST(TableValue, WithoutATableTheFirstRowAnywhereWins)
{
    EXPECT_EQ(valueIn("t = {\r\n\ttA = {\r\n\t\tbUse = 1,\r\n\t},\r\n\tbUse = 0,\r\n}", "bUse"), "1");
}

TEST(TableValue, RowsBeforeTheTablesOpeningLineAreInvisible)
{
    const std::string bytes = "t1 = {\r\n\tsKey = \"one\",\r\n}\r\nt2 = {\r\n\tsKey = \"two\",\r\n}\r\n";
    EXPECT_EQ(valueIn(bytes, "sKey", "t2"), "two");
    EXPECT_EQ(valueIn(bytes, "sKey", "t1"), "one");
    EXPECT_EQ(valueIn(bytes, "sKey", "t3"), "");
}

TEST(TableValue, AClosingBraceDoesNotEndTheTable)
{
    const std::string bytes = "t1 = {\r\n}\r\nt2 = {\r\n\tsKey = \"two\",\r\n}\r\n";
    EXPECT_EQ(valueIn(bytes, "sKey", "t1"), "two");
}

TEST(TableValue, TheOpeningLineOfATableIsNoRow)
{
    EXPECT_EQ(valueIn("t = {\r\n\ttA = {\r\n\t\ttA = 5,\r\n\t},\r\n}", "tA", "tA"), "5");
}

TEST(TableValue, AProfileKeyIsFoundInItsOwnNestedTable)
{
    const std::string bytes = "tKickCanBan = {\r\n\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t},\r\n"
                              "\t[0] = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n";
    EXPECT_EQ(valueIn(bytes, "0", "-1"), "1");
    EXPECT_EQ(valueIn(bytes, "-1", "0"), "1");
    EXPECT_EQ(valueIn(bytes, "0", "0"), "0");
}

TEST(TableValue, AKeyOnLine5000IsReadAndOneOnLine5001IsNot)
{
    EXPECT_EQ(valueIn(linesBefore(4999) + "sKey = \"x\",", "sKey"), "x");
    EXPECT_EQ(valueIn(linesBefore(5000) + "sKey = \"x\",", "sKey"), "");
    EXPECT_EQ(valueIn("sKey = \"x\",\r\n" + linesBefore(5000), "sKey"), "x");
}

TEST(TableValue, AllThreeLineEndsAreRead)
{
    for (const std::string end : {"\r\n", "\n", "\r"})
        EXPECT_EQ(valueIn("t = {" + end + "\tiA = 1," + end + end + "\tiB = 2," + end + "}", "iB", "t"), "2");
}

TEST(TableValue, EveryByteSurvives)
{
    for (int byte = 0; byte < 256; ++byte) {
        const char character = static_cast<char>(byte);
        if (character == '\r' || character == '\n')
            continue;
        const std::string text = std::string("a") + character + "z";
        EXPECT_EQ(valueIn("t = {\r\n\tsKey = \"" + text + "\",\r\n}", "sKey"), text) << byte;
    }
}

TEST(TableValue, AMissingFileReadsAsEmpty)
{
    const test::Hub hub;
    EXPECT_EQ(hub.files.ReadTableValue("No.tbl", "sKey"), "");
    EXPECT_EQ(hub.files.ReadTableSubValue("No.tbl", "t", "sKey"), "");
    EXPECT_EQ(hub.files.ReadTextFile("No.txt"), "");
}

TEST(TableValue, IsReadBelowTheSettingsRootTheProgramFolderOrAnAbsolutePath)
{
    test::Hub hub;
    hub.file("A.tbl") = "sKey = settings";
    hub.store.files["/hub/scripts/A.tbl"] = "sKey = program";
    hub.store.files["C:/elsewhere/A.tbl"] = "sKey = absolute";
    EXPECT_EQ(hub.files.ReadTableValue("A.tbl", "sKey"), "settings");
    EXPECT_EQ(hub.files.ReadTableValue("A.tbl", "sKey", {}, true), "program");
    EXPECT_EQ(hub.files.ReadTableValue(R"(C:\elsewhere\A.tbl)", "sKey", {}, true), "absolute");
}

TEST(TableSubValue, ReadsAKeyBehindTheLineThatNamesItsTable)
{
    test::Hub hub;
    hub.file("A.tbl") =
        "tMOTDSettings = {\r\n\tbUse = 5,\r\n\ttByProfile = {\r\n\t\t[-1] = {\r\n\t\t\tbUse = 1,\r\n\t\t},"
        "\r\n\t\t[0] = {\r\n\t\t\tbUse = 0,\r\n\t\t},\r\n\t},\r\n}";
    EXPECT_EQ(hub.files.ReadTableSubValue("A.tbl", " -1 ", "bUse"), "1");
    EXPECT_EQ(hub.files.ReadTableSubValue("A.tbl", "0", "bUse"), "0");
    EXPECT_EQ(hub.files.ReadTableSubValue("A.tbl", "0", "bInMain"), "");
    EXPECT_EQ(hub.files.ReadTableSubValue("A.tbl", "1", "bUse"), "");
}

TEST(TableSubValue, TheFoundMarkSurvivesClosingBraces)
{
    test::Hub hub;
    hub.file("A.tbl") = "\ttA = {\r\n\t},\r\n\ttB = {\r\n\t\tiKey = 7,\r\n\t},";
    EXPECT_EQ(hub.files.ReadTableSubValue("A.tbl", "tA", "iKey"), "7");
}

TEST(TableSubValue, AValueIsCutAtItsSecondEqualsSign)
{
    test::Hub hub;
    hub.file("A.tbl") = "t = {\r\nsKey = \"a=b\",";
    EXPECT_EQ(hub.files.ReadTableSubValue("A.tbl", "t", "sKey"), "a");
}

TEST(TableSubValue, HasNoLineLimitAndSkipsLinesWithoutEquals)
{
    test::Hub hub;
    hub.file("A.tbl") = "t = {\r\niKey\r\n" + linesBefore(6000) + "iKey = 3";
    EXPECT_EQ(hub.files.ReadTableSubValue("A.tbl", "t", "iKey"), "3");
}

TEST(TableSubValue, AsAFlagIsOneWhenTheNumberIsExactlyOne)
{
    test::Hub hub;
    const auto flagOf = [&hub](const std::string& text) {
        hub.file("A.tbl") = "t = {\r\nbKey = " + text + ",";
        return hub.files.ReadTableSubValue("A.tbl", "t", "bKey", true);
    };
    EXPECT_EQ(flagOf("1"), "1");
    EXPECT_EQ(flagOf("1.0"), "1");
    EXPECT_EQ(flagOf("01"), "1");
    EXPECT_EQ(flagOf("0"), "0");
    EXPECT_EQ(flagOf("2"), "0");
    EXPECT_EQ(flagOf("1x"), "0");
    EXPECT_EQ(flagOf(""), "0");
}

TEST(TableSubValue, HasNoTestForAnAbsolutePath)
{
    test::Hub hub;
    hub.store.files["C:/elsewhere/A.tbl"] = "t = {\r\niKey = 1";
    hub.store.files[hub.root + "/C:/elsewhere/A.tbl"] = "t = {\r\niKey = 2";
    EXPECT_EQ(hub.files.ReadTableSubValue(R"(C:\elsewhere\A.tbl)", "t", "iKey"), "2");
}

/// Files made of the pieces that the rules look at, whole and damaged, in any order.
class RandomFile
{
public:
    explicit RandomFile(unsigned seed) : m_random(seed) {}

    std::string bytes()
    {
        std::string text;
        const int pieces = pick(400);
        for (int at = 0; at < pieces; ++at)
            text += piece();
        return text;
    }

    std::string name() { return names[static_cast<std::size_t>(pick(static_cast<int>(names.size())))]; }

private:
    std::string piece()
    {
        static const std::vector<std::string> glue = {
            "\t", "\t\t", " ",    "\"",       ",",     "[",       "]",  "[\"[", "[\"", "\"]",
            "=",  " = ",  "={",   " = {\r\n", "{",     "}",       "},", "}\n",  "1",   "\r",
            "\n", "\r\n", "\r\n", "\r\n",     ",\r\n", "\",\r\n", "t",  "\n\r"};
        switch (pick(8)) {
        case 0:
        case 1:
            return name();
        case 2:
            return name() + " = {\r\n";
        case 3:
            return "\t" + name() + " = " + name() + ",\r\n";
        case 4:
            return std::string(1, static_cast<char>(pick(256)));
        default:
            return glue[static_cast<std::size_t>(pick(static_cast<int>(glue.size())))];
        }
    }

    int pick(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }

    const std::vector<std::string> names = {"a",    "b", "tA",   "tB",  "-1", "0", "1",
                                            "[x]y", "",  "sKey", "a b", "{",  "}"};
    std::mt19937 m_random;
};

TEST(TableIndex, AnswersLikeAScanFromTheStartOnThousandsOfDamagedFiles)
{
    int found = 0;
    for (unsigned seed = 0; seed < 3000; ++seed) {
        RandomFile file(seed);
        const std::string bytes = file.bytes();
        const TableIndex index(bytes);
        for (int at = 0; at < 6; ++at) {
            const std::string key = file.name();
            const std::string table = file.name();
            const std::string expected = test::plainScan(bytes, key, table);
            found += expected.empty() ? 0 : 1;
            ASSERT_EQ(index.value(key, table), expected)
                << "seed " << seed << " key " << key << " table " << table;
        }
    }
    EXPECT_GT(found, 1000); // the files are worth the comparison
}

TEST(TableCells, AnswerLikeAScanFromTheStartInWhateverOrderTheTablesAreEntered)
{
    int found = 0;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        RandomFile file(seed);
        const std::string bytes = file.bytes();
        const TableIndex index(bytes);
        const std::vector<std::string> keys = {file.name(), file.name(), file.name()};
        TableCells cells(index, keys);
        for (const std::string table : {"tB", "a", "tA", "b", "tA", "none", "0"}) {
            cells.enter(table);
            for (std::size_t at = 0; at < keys.size(); ++at) {
                const std::string expected = test::plainScan(bytes, keys[at], table);
                found += expected.empty() ? 0 : 1;
                ASSERT_EQ(cells.at(at), expected)
                    << "seed " << seed << " key " << keys[at] << " table " << table;
            }
        }
    }
    EXPECT_GT(found, 1000);
}

TEST(TableCells, AreEmptyBeforeATableIsEntered)
{
    const TableIndex index("a = 1");
    TableCells cells(index, {"a"});
    EXPECT_EQ(cells.at(0), "");
}

TEST(TableIndex, AnswersLikeAScanAroundTheLineLimit)
{
    for (std::size_t before = 4990; before < 5010; ++before) {
        const std::string bytes = linesBefore(before) + "t = {\r\n\ta = 1,\r\n\tb = 2,\r\n";
        const TableIndex index(bytes);
        for (const char* key : {"a", "b"}) {
            EXPECT_EQ(index.value(key, "t"), test::plainScan(bytes, key, "t")) << before;
            EXPECT_EQ(index.value(key), test::plainScan(bytes, key, "")) << before;
        }
    }
}

} // namespace
} // namespace quillfen
