#include "functions/security/mainchat.h"
#include "functions/security/securitytest.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class MainChat : public test::SecurityFiles
{
protected:
    std::string& block = file("MainBlock/MainBlockSettings.tbl");
    std::string& lock = file("MainLock/MainLockSettings.tbl");
    std::string& cleaner = file("MainCleaner/MainCleanerSettings.tbl");

    void build()
    {
        buildFunction(mainBlockFunction(), hub.files, hub.profiles);
        buildFunction(mainLockFunction(), hub.files, hub.profiles);
        buildFunction(mainCleanerFunction(), hub.files, hub.profiles);
    }
};

TEST_F(MainChat, AFreshBuildWritesTheDefaults)
{
    build();
    EXPECT_TRUE(sameBytes(block, golden("MainBlock.build.tbl")));
    EXPECT_TRUE(sameBytes(lock, golden("MainLock.build.tbl")));
    EXPECT_TRUE(sameBytes(cleaner, golden("MainCleaner.build.tbl")));
    EXPECT_EQ(file("MainCleaner/MainCleaner.asc"), "Cleaned\r\n");
}

TEST_F(MainChat, ARebuildKeepsWhatTheFormsSavedAndPutsTheBlockTimeLast)
{
    block = golden("MainBlock.save.tbl");
    lock = golden("MainLock.save.tbl");
    cleaner = golden("MainCleaner.save.tbl");
    build();
    EXPECT_TRUE(sameBytes(block, golden("MainBlock.rebuild.tbl")));
    EXPECT_TRUE(sameBytes(lock, golden("MainLock.save.tbl")));
    EXPECT_TRUE(sameBytes(cleaner, golden("MainCleaner.save.tbl")));
}

TEST_F(MainChat, BothOrdersOfTheBlockSettingsLoadTheSame)
{
    const auto valuesOf = [this](const char* name) {
        return loaded(mainBlockSettings(), TableIndex(golden(name)), hub.profiles);
    };
    EXPECT_EQ(valuesOf("MainBlock.save.tbl"), valuesOf("MainBlock.rebuild.tbl"));
    EXPECT_EQ(luaValues(golden("MainBlock.save.tbl")), luaValues(golden("MainBlock.rebuild.tbl")));
}

TEST_F(MainChat, AnExistingCleanerTextSurvivesARebuild)
{
    file("MainCleaner/MainCleaner.asc") = "Spotless";
    build();
    EXPECT_EQ(file("MainCleaner/MainCleaner.asc"), "Spotless");
}

TEST_F(MainChat, TheHubScriptSeesItsValues)
{
    EXPECT_EQ(luaValues(golden("MainBlock.save.tbl")),
              (LuaValues{{"tMainBlockSettings.iBlockTime", "2000"},
                         {"tMainBlockSettings.tEnabledProfiles.-1", "0"},
                         {"tMainBlockSettings.tEnabledProfiles.0", "1"},
                         {"tMainBlockSettings.tEnabledProfiles.1", "1"},
                         {"tMainBlockSettings.tEnabledProfiles.2", "0"},
                         {"tMainBlockSettings.tExemptProfiles.-1", "0"},
                         {"tMainBlockSettings.tExemptProfiles.0", "0"},
                         {"tMainBlockSettings.tExemptProfiles.1", "0"},
                         {"tMainBlockSettings.tExemptProfiles.2", "1"}}));
    EXPECT_EQ(luaValues(golden("MainLock.save.tbl")).at("tMainLockSettings.tEnabledProfiles.-1"), "1");
    EXPECT_EQ(luaValues(golden("MainLock.save.tbl")).at("tMainLockSettings.tExemptProfiles.1"), "1");
    EXPECT_EQ(luaValues(golden("MainCleaner.save.tbl")).at("tMainCleanerSettings.tEnabledProfiles.0"), "1");
}

} // namespace
} // namespace quillfen
