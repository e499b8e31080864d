#include "functions/security/kicks.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::sameBytes;

class Kicks : public testing::Test
{
protected:
    Kicks() { hub.profiles.add("Master"); }

    test::Hub hub{"Security", "Security/Kick", "Security/Kick/Logs"};
};

TEST_F(Kicks, AFreshBuildWritesTheSettingsInItsOwnOrder)
{
    buildFunction(kicksFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(
        sameBytes(hub.file("Security/Kick/KickSettings.tbl"), golden("security/KickSettings.build.tbl")));
}

TEST_F(Kicks, ARebuildKeepsWhatTheFormSaved)
{
    hub.file("Security/Kick/KickSettings.tbl") = golden("security/KickSettings.save.tbl");
    buildFunction(kicksFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file("Security/Kick/KickSettings.tbl"),
                          "tKickSettings = {\r\n\tiWarnsMakeKick = 6,\r\n\tiKicksMakeBan = 5,\r\n"
                          "\tiTimeBansMakeBan = 5,\r\n\tiKickBanTime = 10,\r\n\tbAnnounceNextArrival = 0,\r\n"
                          "\tbCleanerActive = 1,\r\n\tiCleanOlderThan = 30,\r\n\tiCleanerTime = 1299,\r\n"
                          "\tiTopKickers = 9999,\r\n\tbAsciiToMain = 1,\r\n}\r\n"));
}

TEST_F(Kicks, ABuildWritesItsFilesInOrder)
{
    buildFunction(kicksFunction(), hub.files, hub.profiles);
    const std::string folder = "write " + hub.root + "/Security/Kick/";
    std::vector<std::string> expected;
    for (const char* name :
         {"KickSettings.tbl", "KickAscii.asc", "Logs/KickerLog.tbl", "Logs/KickLog.tbl", "KickCanBan.tbl",
          "KickCanDrop.tbl", "KickCanKick.tbl", "KickCanTempBan.tbl", "KickCanUnban.tbl", "KickCanWarn.tbl"})
        expected.push_back(folder + name);
    EXPECT_EQ(hub.store.log, expected);
}

TEST_F(Kicks, ContentIsMadeOnlyWhereItIsMissing)
{
    buildFunction(kicksFunction(), hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Security/Kick/KickAscii.asc"), "!victim!: !reason!\r\n");
    EXPECT_EQ(hub.file("Security/Kick/Logs/KickerLog.tbl"), "tKickerLog = {\r\n}\r\n");
    EXPECT_EQ(hub.file("Security/Kick/Logs/KickLog.tbl"), "tKickLog = {\r\n}\r\n");
    for (const char* name : {"KickAscii.asc", "Logs/KickerLog.tbl", "Logs/KickLog.tbl"})
        hub.file(std::string("Security/Kick/") + name) = "mine";
    buildFunction(kicksFunction(), hub.files, hub.profiles);
    for (const char* name : {"KickAscii.asc", "Logs/KickerLog.tbl", "Logs/KickLog.tbl"})
        EXPECT_EQ(hub.file(std::string("Security/Kick/") + name), "mine");
}

TEST_F(Kicks, ABuiltGridIsAFullSquareOfZeroes)
{
    buildFunction(kicksFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file("Security/Kick/KickCanTempBan.tbl"),
                          "tKickCanTempBan = {\r\n\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n"
                          "\t[0] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n"));
}

TEST_F(Kicks, ARebuildWithANewProfileKeepsOldCellsAndLeavesTheFormsTimeBansAlone)
{
    hub.file("Security/Kick/KickCanDrop.tbl") =
        "tKickCanDrop = {\r\n\t[-1] = {\r\n\t\t[-1] = 1,\r\n\t},\r\n}\r\n";
    hub.file("Security/Kick/KickCanTimeBan.tbl") = "the form's own square";
    buildFunction(kicksFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file("Security/Kick/KickCanDrop.tbl"),
                          "tKickCanDrop = {\r\n\t[-1] = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n\t},\r\n"
                          "\t[0] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n"));
    EXPECT_EQ(hub.file("Security/Kick/KickCanTimeBan.tbl"), "the form's own square");
}

TEST_F(Kicks, TheFormsTimeBansAreAnotherFileThanTheBuildsTempBans)
{
    std::vector<std::string> paths;
    std::vector<std::string> tables;
    for (const GridCommand& command : kickPermissions().commands) {
        paths.push_back(command.path);
        tables.push_back(command.table);
    }
    EXPECT_EQ(paths, (std::vector<std::string>{
                         R"(Security\Kick\KickCanDrop.tbl)", R"(Security\Kick\KickCanWarn.tbl)",
                         R"(Security\Kick\KickCanKick.tbl)", R"(Security\Kick\KickCanTimeBan.tbl)",
                         R"(Security\Kick\KickCanBan.tbl)", R"(Security\Kick\KickCanUnban.tbl)"}));
    EXPECT_EQ(tables, (std::vector<std::string>{"tKickCanDrop", "tKickCanWarn", "tKickCanKick",
                                                "tKickCanTimeBan", "tKickCanBan", "tKickCanUnban"}));
}

TEST_F(Kicks, TheHubScriptSeesSettingsAndGrid)
{
    buildFunction(kicksFunction(), hub.files, hub.profiles);
    const auto settings = test::luaValues(hub.file("Security/Kick/KickSettings.tbl"));
    EXPECT_EQ(settings.size(), 10U);
    EXPECT_EQ(settings.at("tKickSettings.iCleanerTime"), "2355");
    EXPECT_EQ(test::luaValues(hub.file("Security/Kick/KickCanBan.tbl")),
              (test::LuaValues{{"tKickCanBan.-1.-1", "0"},
                               {"tKickCanBan.-1.0", "0"},
                               {"tKickCanBan.0.-1", "0"},
                               {"tKickCanBan.0.0", "0"}}));
}

} // namespace
} // namespace quillfen
