#include "functions/communication/motd.h"
#include "settings/profiles.h"
#include "settings/tablefile.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::luaValues;
using test::sameBytes;

class Motd : public testing::Test
{
protected:
    Motd()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    test::Hub hub{"Communication", "Communication/MOTD", "Communication/MOTD/MOTDs"};
    std::string& settings = hub.file("Communication/MOTD/MOTDSettings.tbl");
    const std::string texts = "Communication/MOTD/MOTDs/";
};

TEST_F(Motd, AFreshBuildSendsNothingAndMakesAnEmptyTextForEach)
{
    buildFunction(motdFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("communication/MOTDSettings.build.tbl")));
    for (const char* name : {"-1", "0", "1", "2", "all"}) {
        ASSERT_TRUE(hub.has(texts + name + ".asc")) << name;
        EXPECT_EQ(hub.file(texts + name + ".asc"), "\r\n");
    }
    EXPECT_EQ(hub.files.fileNames(R"(Communication\MOTD\MOTDs)").size(), 5U);
    const auto values = luaValues(settings);
    EXPECT_EQ(values.at("tMOTDSettings.tByProfile.-1.bUse"), "0");
    EXPECT_EQ(values.at("tMOTDSettings.tAll.bInMain"), "0");
    EXPECT_EQ(values.size(), 10U);
}

TEST_F(Motd, HasARowForEachProfileAndABoldOneForAll)
{
    settings = "tMOTDSettings = {\r\n\t[0] = {\r\n\t\tbUse = 1,\r\n\t\tbInMain = 1,\r\n\t},\r\n"
               "\ttAll = {\r\n\t\tbUse = 1,\r\n\t\tbInMain = 0,\r\n\t},\r\n}\r\n";
    const auto rows = loadMotds(hub.files, hub.profiles);
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0], (CellRow{{"Unregistered", "PM"}, false, false}));
    EXPECT_EQ(rows[1], (CellRow{{"Master", "Main"}, true, false}));
    EXPECT_EQ(rows[4], (CellRow{{"All", "PM"}, true, true}));
}

TEST_F(Motd, ARebuildKeepsTheProfilesAndSwitchesTheMessageForAllOff)
{
    settings = golden("communication/MOTDSettings.save.tbl");
    hub.file(texts + "0.asc") = "hello\r\n";
    buildFunction(motdFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("communication/MOTDSettings.rebuild.tbl")));
    EXPECT_EQ(hub.file(texts + "0.asc"), "hello\r\n");
    EXPECT_EQ(luaValues(settings).at("tMOTDSettings.tByProfile.1.bInMain"), "1");
    EXPECT_EQ(luaValues(settings).at("tMOTDSettings.tAll.bUse"), "0");
}

TEST_F(Motd, ARebuildTakesTheMessageForAllFromAFileOfAnotherNameWhereThereIsOne)
{
    hub.file("Communication/MOTD/MassMessageSettings.tbl") =
        "tX = {\r\n\ttAll = {\r\n\t\tbUse = 1,\r\n\t\tbInMain = 1,\r\n\t},\r\n}\r\n";
    settings = golden("communication/MOTDSettings.save.tbl");
    buildFunction(motdFunction(), hub.files, hub.profiles);
    EXPECT_EQ(luaValues(settings).at("tMOTDSettings.tAll.bUse"), "1");
    EXPECT_EQ(luaValues(settings).at("tMOTDSettings.tAll.bInMain"), "1");
}

TEST_F(Motd, ANewProfileJoinsWithZerosAndATextOfItsOwn)
{
    buildFunction(motdFunction(), hub.files, hub.profiles);
    hub.profiles.add("Newcomer");
    buildFunction(motdFunction(), hub.files, hub.profiles);
    EXPECT_EQ(luaValues(settings).at("tMOTDSettings.tByProfile.3.bUse"), "0");
    EXPECT_TRUE(hub.has(texts + "3.asc"));
}

} // namespace
} // namespace quillfen
