#include "functions/communication/rotatingmessages.h"
#include "settings/tablefile.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class Rotating : public testing::Test
{
protected:
    Rotating()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    static std::string path(const std::string& name, const char* file)
    {
        return "Communication/" + name + "/" + name + file;
    }

    std::vector<CellRow> loadedNames() { return loadRotatingNames(rotatingMainMessages(), hub.files); }

    test::Hub hub{"Communication", "Communication/RotatingMainMessage",
                  "Communication/RotatingMainMessage/Files", "Communication/RotatingPrivateMessage",
                  "Communication/RotatingPrivateMessage/Files"};
    const std::string main = "RotatingMainMessage";
    const std::string priv = "RotatingPrivateMessage";
    const std::string texts = "Communication/RotatingMainMessage/Files/";
};

TEST_F(Rotating, AFreshBuildWritesDefaultsAndEmptyLists)
{
    buildFunction(rotatingMainMessagesFunction(), hub.files, hub.profiles);
    buildFunction(rotatingPrivateMessagesFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(path(main, "Settings.tbl")),
                          golden("communication/RotatingMainMessageSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(hub.file(path(priv, "Settings.tbl")),
                          golden("communication/RotatingPrivateMessageSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(hub.file(path(main, "Files.tbl")), "tRotatingMainMessageFiles = {\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(hub.file(path(priv, "Files.tbl")), "tRotatingPrivateMessageFiles = {\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(hub.file(path(priv, "ImmuneUsers.tbl")),
                          "tRotatingPrivateMessageImmuneUsers = {\r\n}\r\n"));
    EXPECT_FALSE(hub.has(path(main, "ImmuneUsers.tbl")));
    const auto values = luaValues(hub.file(path(priv, "Settings.tbl")));
    EXPECT_EQ(values.at("tRotatingPrivateMessageSettings.iDelay"), "120");
    EXPECT_EQ(values.size(), 14U);
}

TEST_F(Rotating, ARebuildHasTheTablesInAnotherOrderThanASaveAndLeavesTheLists)
{
    hub.file(path(main, "Settings.tbl")) = golden("communication/RotatingMainMessageSettings.save.tbl");
    hub.file(path(priv, "Settings.tbl")) = golden("communication/RotatingPrivateMessageSettings.save.tbl");
    for (const char* file : {"Files.tbl", "ImmuneUsers.tbl"})
        hub.file(path(priv, file)) = "mine";
    buildFunction(rotatingMainMessagesFunction(), hub.files, hub.profiles);
    buildFunction(rotatingPrivateMessagesFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(path(main, "Settings.tbl")),
                          golden("communication/RotatingMainMessageSettings.save.tbl")));
    EXPECT_TRUE(sameBytes(hub.file(path(priv, "Settings.tbl")),
                          golden("communication/RotatingPrivateMessageSettings.rebuild.tbl")));
    EXPECT_EQ(hub.file(path(priv, "Files.tbl")), "mine");
    EXPECT_EQ(hub.file(path(priv, "ImmuneUsers.tbl")), "mine");
}

TEST_F(Rotating, ANewProfileJoinsWithZero)
{
    hub.file(path(priv, "Settings.tbl")) = golden("communication/RotatingPrivateMessageSettings.save.tbl");
    hub.profiles.add("Newcomer");
    buildFunction(rotatingPrivateMessagesFunction(), hub.files, hub.profiles);
    const auto values = luaValues(hub.file(path(priv, "Settings.tbl")));
    EXPECT_EQ(values.at("tRotatingPrivateMessageSettings.tEnabledAdProfiles.3"), "0");
    EXPECT_EQ(values.at("tRotatingPrivateMessageSettings.tEnabledMaintainProfiles.2"), "1");
}

TEST_F(Rotating, NamesAreTickedWhereTheyHaveAFileAndOtherFilesFollowUnticked)
{
    hub.file(path(main, "Files.tbl")) =
        "tRotatingMainMessageFiles = {\r\n\t\"two\",\r\n\t\"gone\",\r\n\t\"caf\xE9\",\r\n}\r\n";
    for (const char* name : {"one.asc", "two.asc", "caf\xC3\xA9.asc", "TWO.asc", "x.html"})
        hub.file(texts + name) = "";
    EXPECT_EQ(loadedNames(),
              (std::vector<CellRow>{
                  {{"two"}, true}, {{"gone"}}, {{"caf\xE9"}, true}, {{"TWO"}}, {{"one"}}, {{"x."}}}));
}

TEST_F(Rotating, ASecondFileOfOneStemTicksTheRowOfTheFirst)
{
    hub.file(path(main, "Files.tbl")) = "tRotatingMainMessageFiles = {\r\n}\r\n";
    for (const char* name : {"one.asc", "one.txt", "two.asc"})
        hub.file(texts + name) = "";
    EXPECT_EQ(loadedNames(), (std::vector<CellRow>{{{"one"}, true}, {{"two"}}}));
}

TEST_F(Rotating, AShortFileNameLosesWhatTheCutTakes)
{
    hub.file(path(main, "Files.tbl")) = "tRotatingMainMessageFiles = {\r\n}\r\n";
    hub.file(texts + "abc") = "";
    EXPECT_EQ(loadedNames(), (std::vector<CellRow>{{{""}}}));
}

TEST_F(Rotating, ATableOfNumberedRowsIsReadByItsKeys)
{
    hub.file(path(main, "Files.tbl")) =
        "tRotatingMainMessageFiles = {\r\n\t[1] = \"one\",\r\n\t[2] = \"two\",\r\n}\r\n";
    EXPECT_EQ(loadedNames(), (std::vector<CellRow>{{{"1"}}, {{"2"}}}));
}

TEST_F(Rotating, OnlyTickedNamesAreSavedInListOrder)
{
    saveRotatingNames(rotatingMainMessages(), {{{"b"}, true}, {{"c"}}, {{"a"}, true}}, hub.files);
    EXPECT_TRUE(sameBytes(hub.file(path(main, "Files.tbl")),
                          "tRotatingMainMessageFiles = {\r\n\t\"b\",\r\n\t\"a\",\r\n}\r\n"));
    EXPECT_EQ(luaValues(hub.file(path(main, "Files.tbl"))),
              (LuaValues{{"tRotatingMainMessageFiles.1", "b"}, {"tRotatingMainMessageFiles.2", "a"}}));
}

} // namespace
} // namespace quillfen
