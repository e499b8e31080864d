#include "functions/security/blockers.h"
#include "functions/security/securitytest.h"
#include "functions/security/shared/actions.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

TEST(Actions, EachOfTheSixWordsHasItsLetter)
{
    EXPECT_EQ(actionWords(),
              (std::vector<std::string>{"Disconnect", "Warn", "Notify Ops", "Kick", "TempBan", "Ban"}));
    const std::vector<std::pair<const char*, const char*>> pairs = {{"D", "Disconnect"}, {"W", "Warn"},
                                                                    {"N", "Notify Ops"}, {"K", "Kick"},
                                                                    {"T", "TempBan"},    {"B", "Ban"}};
    for (const auto& [letter, word] : pairs) {
        EXPECT_EQ(actionWord(actionWords(), letter), word);
        EXPECT_EQ(setting::letterOf(word), letter);
    }
    EXPECT_EQ(actionWord(actionWords(), "x"), "");
    EXPECT_EQ(actionWord(actionWords(), ""), "");
    EXPECT_EQ(setting::letterOf(""), "");
}

class Blockers : public test::SecurityFiles
{
protected:
    std::string& nickSettings = file("BadNickBlocker/BadNickBlockerSettings.tbl");
    std::string& cloneSettingsFile = file("CloneBlocker/CloneBlockerSettings.tbl");
    std::string& virus = file("AntiVirus/AntiVirusSettings.tbl");

    void build()
    {
        buildFunction(badNickBlockerFunction(), hub.files, hub.profiles);
        buildFunction(cloneBlockerFunction(), hub.files, hub.profiles);
        buildFunction(antiVirusFunction(), hub.files, hub.profiles);
    }
};

TEST_F(Blockers, AFreshBuildWritesTheDefaults)
{
    build();
    EXPECT_TRUE(sameBytes(nickSettings, golden("BadNick.build.tbl")));
    EXPECT_TRUE(sameBytes(cloneSettingsFile, golden("Clone.build.tbl")));
    EXPECT_TRUE(sameBytes(virus, golden("AntiVirus.build.tbl")));
    EXPECT_EQ(file("BadNickBlocker/BadNickBlockerNickList.tbl"), "tBadNickBlockerNickList = {\r\n}\r\n");
    EXPECT_EQ(file("CloneBlocker/CloneBlockerExemptUsers.tbl"), "tCloneBlockerExemptUsers = {\r\n}\r\n");
}

TEST_F(Blockers, ARebuildKeepsWhatTheFormsSavedInItsOwnOrder)
{
    nickSettings = golden("BadNick.save.tbl");
    cloneSettingsFile = golden("Clone.save.tbl");
    virus = golden("AntiVirus.save.tbl");
    file("BadNickBlocker/BadNickBlockerNickList.tbl") = golden("BadNickList.save.tbl");
    file("CloneBlocker/CloneBlockerExemptUsers.tbl") = golden("CloneUsers.save.tbl");
    build();
    EXPECT_TRUE(sameBytes(nickSettings, golden("BadNick.rebuild.tbl")));
    EXPECT_TRUE(sameBytes(cloneSettingsFile, golden("Clone.rebuild.tbl")));
    EXPECT_TRUE(sameBytes(virus, golden("AntiVirus.rebuild.tbl")));
    EXPECT_EQ(file("BadNickBlocker/BadNickBlockerNickList.tbl"), golden("BadNickList.save.tbl"));
    EXPECT_EQ(file("CloneBlocker/CloneBlockerExemptUsers.tbl"), golden("CloneUsers.save.tbl"));
}

TEST_F(Blockers, NoBuildWritesTheNotificationFlag)
{
    virus = "tAntiVirusSettings = {\r\n\tbSendNotification = 1,\r\n}\r\n";
    build();
    EXPECT_TRUE(sameBytes(virus, golden("AntiVirus.build.tbl")));
}

TEST_F(Blockers, TheHubScriptSeesTheirValues)
{
    EXPECT_EQ(luaValues(golden("AntiVirus.build.tbl")),
              (LuaValues{{"tAntiVirusSettings.iTempBanTime", "60"}, {"tAntiVirusSettings.sAction", "D"}}));
    EXPECT_EQ(luaValues(golden("AntiVirus.save.tbl")),
              (LuaValues{{"tAntiVirusSettings.iTempBanTime", "61"}, {"tAntiVirusSettings.sAction", "W"}}));
    EXPECT_EQ(luaValues(golden("BadNickList.save.tbl")), (LuaValues{{"tBadNickBlockerNickList.1", "root"},
                                                                    {"tBadNickBlockerNickList.2", "ad min"},
                                                                    {"tBadNickBlockerNickList.3", "bot"}}));
    EXPECT_EQ(luaValues(golden("CloneUsers.save.tbl")),
              (LuaValues{{"tCloneBlockerExemptUsers.Ann", "1"}, {"tCloneBlockerExemptUsers.Bob", "1"}}));
    const auto nick = luaValues(golden("BadNick.save.tbl"));
    EXPECT_EQ(nick.size(), 6U);
    EXPECT_EQ(nick.at("tBadNickBlockerSettings.sAction"), "B");
    EXPECT_EQ(nick.at("tBadNickBlockerSettings.iTempBanTime"), "90");
    EXPECT_EQ(nick.at("tBadNickBlockerSettings.tExemptProfiles.0"), "1");
    const auto clone = luaValues(golden("Clone.save.tbl"));
    EXPECT_EQ(clone.size(), 10U);
    EXPECT_EQ(clone.at("tCloneBlockerSettings.tEnabledProfiles.-1"), "1");
    EXPECT_EQ(clone.at("tCloneBlockerSettings.tExemptProfiles.1"), "1");
    EXPECT_EQ(clone, luaValues(golden("Clone.rebuild.tbl")));
}

} // namespace
} // namespace quillfen
