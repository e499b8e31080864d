#include "settings/codepage.h"
#include "settings/tablefile.h"
#include "settings/tablewriter.h"
#include "settings/textfolder.h"
#include "support/hub.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

TEST(TextFile, ComesBackWithOneMoreLineEndThanWasComposed)
{
    const test::Hub hub;
    hub.files.WriteSettingsFile("A.txt", "one\r\ntwo");
    EXPECT_EQ(hub.files.ReadTextFile("A.txt"), "one\r\ntwo\r\n");
}

TEST(TextFile, EveryLineEndBecomesCrLf)
{
    test::Hub hub;
    hub.file("A.txt") = "a\nb\rc\r\n\nd";
    EXPECT_EQ(hub.files.ReadTextFile("A.txt"), "a\r\nb\r\nc\r\n\r\nd\r\n");
}

TEST(TextFile, Of5000LinesIsReadWholeAndOf5001IsEmpty)
{
    test::Hub hub;
    std::string lines;
    for (int line = 0; line < 5000; ++line)
        lines += "x\r\n";
    hub.file("A.txt") = lines;
    EXPECT_EQ(hub.files.ReadTextFile("A.txt"), lines);
    hub.file("A.txt") = lines + "y";
    EXPECT_EQ(hub.files.ReadTextFile("A.txt"), "");
}

TEST(TextFile, IsReadFromAnAbsolutePath)
{
    test::Hub hub;
    hub.store.files["C:/elsewhere/A.txt"] = "one";
    EXPECT_EQ(hub.files.ReadTextFile(R"(C:\elsewhere\A.txt)"), "one\r\n");
}

TEST(TextFile, EveryByteSurvivesWritingAndReading)
{
    const test::Hub hub;
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n')
            bytes += static_cast<char>(byte);
    }
    hub.files.WriteSettingsFile("A.txt", bytes);
    EXPECT_EQ(hub.files.ReadTextFile("A.txt"), bytes + "\r\n");
}

TEST(Writer, AddsOneLineEndBehindTheClosingBrace)
{
    test::Hub hub;
    hub.files.WriteSettingsFile("A.tbl", "t = {\r\n}");
    EXPECT_EQ(hub.file("A.tbl"), "t = {\r\n}\r\n");
}

TEST(Writer, ReplacesTheWholeFileAndTwoWritesAreTheSame)
{
    test::Hub hub;
    hub.file("A.tbl") = "a much longer text than the one to come";
    hub.files.WriteSettingsFile("A.tbl", "x");
    const std::string once = hub.file("A.tbl");
    hub.files.WriteSettingsFile("A.tbl", "x");
    EXPECT_EQ(once, "x\r\n");
    EXPECT_EQ(hub.file("A.tbl"), once);
}

TEST(Writer, EscapesNothing)
{
    test::Hub hub;
    hub.files.WriteSettingsFile("A.tbl", "\ts = \"a\"b\\c\",");
    EXPECT_EQ(hub.file("A.tbl"), "\ts = \"a\"b\\c\",\r\n");
}

TEST(Writer, WritesBelowTheProgramFolderOrToAnAbsolutePath)
{
    test::Hub hub;
    hub.store.folders.insert("C:/elsewhere");
    hub.files.WriteSettingsFile("A.tbl", "x", true);
    hub.files.WriteSettingsFile(R"(C:\elsewhere\A.tbl)", "y");
    EXPECT_EQ(hub.store.files["/hub/scripts/A.tbl"], "x\r\n");
    EXPECT_EQ(hub.store.files["C:/elsewhere/A.tbl"], "y\r\n");
}

TEST(Writer, MakesNoFolderAndItsFailureReachesTheCaller)
{
    const test::Hub hub;
    EXPECT_THROW(hub.files.WriteSettingsFile(R"(Gone\A.tbl)", "x"), StoreError);
}

TEST(TableWriter, RowsStandATabDeeperThanTheirTableWhoseBraceEndsTheText)
{
    EXPECT_EQ(TableWriter("tEmpty").closed(), "tEmpty = {\r\n}");
    TableWriter table("tSample");
    table.row("bFlag", "1").text("sName", "a b").text("sNone", "").row("iNone", "");
    EXPECT_EQ(table.closed(),
              "tSample = {\r\n\tbFlag = 1,\r\n\tsName = \"a b\",\r\n\tsNone = \"\",\r\n\tiNone = ,\r\n}");
}

TEST(TableWriter, NestedTablesOpenAndCloseAtTheirDepth)
{
    TableWriter table("tOuter");
    table.open("tInner").open(bracketed("-1")).row("bFlag", "0").close().row("iCount", "2").close();
    table.open("tNone").close().row("iLast", "3");
    EXPECT_EQ(table.closed(), "tOuter = {\r\n"
                              "\ttInner = {\r\n"
                              "\t\t[-1] = {\r\n"
                              "\t\t\tbFlag = 0,\r\n"
                              "\t\t},\r\n"
                              "\t\tiCount = 2,\r\n"
                              "\t},\r\n"
                              "\ttNone = {\r\n"
                              "\t},\r\n"
                              "\tiLast = 3,\r\n"
                              "}");
}

TEST(TableWriter, RowsMayHaveANumberATextOrNothingForAKey)
{
    TableWriter table("tSample");
    table.text(bracketed("1"), "one").row(bracketed(inQuotes("two")), "1").row(inQuotes("three")).row("4");
    EXPECT_EQ(table.closed(),
              "tSample = {\r\n\t[1] = \"one\",\r\n\t[\"two\"] = 1,\r\n\t\"three\",\r\n\t4,\r\n}");
}

TEST(TableWriter, EscapesNothing)
{
    TableWriter table("tSample");
    table.text("sOdd", "a\"b\\c\x80\r\n\t,}").row(inQuotes("]\"["));
    EXPECT_EQ(table.closed(), "tSample = {\r\n\tsOdd = \"a\"b\\c\x80\r\n\t,}\",\r\n\t\"]\"[\",\r\n}");
}

TEST(TableWriter, LinesOfOtherShapesAndDepthsAreTold)
{
    TableWriter table;
    table.line("tOdd = { ").indent(1).line("n=0");
    table.open("[1]").indent(3).row("bDeep", "1").indent(2).close();
    table.indent(0).row("iFlat", "2");
    EXPECT_EQ(table.closed(),
              "tOdd = { \r\n\tn=0\r\n\t[1] = {\r\n\t\t\tbDeep = 1,\r\n\t},\r\niFlat = 2,\r\n}");
}

TEST(TableWriter, ATableMayStayOpen)
{
    TableWriter table("tOpen");
    table.open("tInner").row("bFlag", "1").close();
    EXPECT_EQ(table.unclosed(), "tOpen = {\r\n\ttInner = {\r\n\t\tbFlag = 1,\r\n\t},");
}

TEST(TableWriter, MoreRowsThanThereWasRoomForAreWritten)
{
    TableWriter table("tMany");
    table.reserve(40);
    std::string expected = "tMany = {\r\n";
    for (int row = 0; row < 100; ++row) {
        table.text("sKey", "a text of some length");
        expected += "\tsKey = \"a text of some length\",\r\n";
    }
    EXPECT_EQ(table.closed(), expected + "}");
}

TEST(FileNames, AreThoseThatTheCodePageHasInItsBytes)
{
    test::Hub hub{"A"};
    for (const char* name : {"A/plain.asc", "A/caf\xC3\xA9.asc", "A/\xE2\x82\xAC.asc", "A/\xD0\x96.asc",
                             "A/\xF0\x9F\x98\x80.asc", "A/back\\slash.asc", "A/broken\xC3"})
        hub.file(name) = "x";
    EXPECT_EQ(hub.files.fileNames("A"), (std::vector<std::string>{"caf\xE9.asc", "plain.asc", "\x80.asc"}));
    EXPECT_EQ(hub.files.fileNames("No"), std::vector<std::string>());
}

TEST(FileNames, ThatNoToldPathCanHoldAreKnownApart)
{
    test::Hub hub{"A"};
    for (const char* name : {"A/plain.asc", "A/\xD0\x96.asc", "A/back\\slash.asc", "A/broken\xC3"})
        hub.file(name) = "x";
    EXPECT_EQ(hub.files.untoldFileNames("A"),
              (std::vector<std::string>{"back\\slash.asc", "broken\xC3", "\xD0\x96.asc"}));
    EXPECT_EQ(hub.files.untoldFileNames("No"), std::vector<std::string>());
}

TEST(RealFiles, AreThoseOfTheToldNameAndElseThoseThatDifferInCaseAlone)
{
    test::Hub hub{"A"};
    for (const char* name :
         {"A/NEWS.ASC", "A/one.asc", "A/One.asc", "A/TWO.ASC", "A/Two.ASC", "A/two.ASC", "A/rules.txt"})
        hub.file(name) = "x";
    EXPECT_EQ(hub.files.realFile("A\\one.asc"), "A\\one.asc");
    EXPECT_EQ(hub.files.realFile("A\\NEWS.asc"), "A\\NEWS.ASC");
    EXPECT_EQ(hub.files.realFile("A\\news.asc"), "A\\NEWS.ASC");
    EXPECT_EQ(hub.files.realFile("A\\two.asc"), "A\\two.ASC"); // the extension differs before the name
    EXPECT_EQ(hub.files.realFile("A\\TWO.asc"), "A\\TWO.ASC");
    EXPECT_EQ(hub.files.realFile("A\\Two.asc"), "A\\Two.ASC");
    EXPECT_EQ(hub.files.realFile("A\\rules.asc"), "A\\rules.asc"); // there is none
    EXPECT_EQ(hub.files.realFile("No\\news.asc"), "No\\news.asc");
    EXPECT_EQ(hub.files.realFile("news.asc"), "news.asc");
    EXPECT_EQ(textFileOnDisk(hub.files, "A", "news"), "A\\NEWS.ASC");
}

TEST(FileNames, OfARemovedFileAreGone)
{
    test::Hub hub{"A"};
    hub.file("A/caf\xC3\xA9.asc") = "x";
    hub.files.removeFile("A\\caf\xE9.asc");
    EXPECT_EQ(hub.files.fileNames("A"), std::vector<std::string>());
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    EXPECT_THROW(hub.files.removeFile("A\\b.asc"), StoreError);
}

TEST(CodePage, ComesBackFromUtf8AndRefusesWhatItLacks)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(codepage::fromUtf8(codepage::toUtf8(bytes)), bytes);
    for (const char* text : {"\xD0\x96", "\xF0\x9F\x98\x80", "\x80", "\xC3", "\xC3x", "\xC0\xAF",
                             "\xE0\x80\xAF", "\xE2\x82", "\xFF"})
        EXPECT_EQ(codepage::fromUtf8(text), std::nullopt) << text;
}

} // namespace
} // namespace quillfen
