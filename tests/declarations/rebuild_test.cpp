#include "advice/notloading.h"
#include "declarations/rebuild.h"
#include "functions/catalogue.h"
#include "store/history.h"
#include "support/binaryprofiles.h"
#include "support/freshtree.h"
#include "support/lua.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;

constexpr const char* hubFile = "/hub/cfg/Profiles.xml";

class Start : public testing::Test
{
protected:
    StartResult run()
    {
        hub.profiles = {};
        asked.clear();
        hub.store.log.clear();
        return reconcileSettings({hub.files, folderCatalogue(), version,
                                  [this](const RebuildQuestion& question) {
                                      asked.emplace_back(question.title);
                                      texts.emplace_back(question.text);
                                      return agree;
                                  }},
                                 hub.profiles);
    }

    std::vector<std::string> madeFolders() const
    {
        std::vector<std::string> made;
        for (const std::string& line : hub.store.log) {
            if (line.starts_with("make " + hub.root + "/"))
                made.push_back(line.substr(("make " + hub.root + "/").size()));
        }
        return made;
    }

    void setProfiles(int count)
    {
        std::string bytes;
        for (int at = 0; at < count; ++at)
            bytes += "<Name>P" + std::to_string(at) + "</Name>\r\n";
        hub.store.files[hubFile] = bytes;
    }

    void firstStart()
    {
        ASSERT_EQ(run(), StartResult::Rebuilt);
        hub.store.log.clear();
    }

    /// What the hub script sees of each table file that it can load.
    std::map<std::string, LuaValues> tree() const
    {
        std::map<std::string, LuaValues> all;
        for (const auto& [path, bytes] : hub.store.files) {
            if (path.ends_with(".tbl") && !notLoading().contains(path.substr(hub.root.size() + 1)))
                all[path] = luaValues(bytes);
        }
        return all;
    }

    /// Puts every flag on that is off, and the other way round.
    static void turnFlags(std::string& bytes)
    {
        for (std::size_t at = bytes.find(" = "); at != std::string::npos; at = bytes.find(" = ", at + 1)) {
            const std::string flag = bytes.substr(at + 3, 3);
            if (flag == "0,\r" || flag == "1,\r")
                bytes[at + 3] = flag[0] == '0' ? '1' : '0';
        }
    }

    test::Hub hub;
    std::string version = "5.2.0";
    bool agree = true;
    std::vector<std::string> asked;
    std::vector<std::string> texts;
};

using Asked = std::vector<std::string>;

TEST_F(Start, TheFirstOneAsksForTheVersionAndBuildsTheTree)
{
    hub.store.folders.erase(hub.root);
    EXPECT_EQ(run(), StartResult::Rebuilt);
    EXPECT_EQ(asked, Asked{"Morvaleth's Quillfen: Version Change Detected"});
    EXPECT_EQ(texts.back(), "New version detected. Settings must be rebuilt; continue?");
    EXPECT_EQ(hub.file("General/Globals/Version.tbl"), "tVersion = {\r\n\tsVersion = \"5.2.0\",\r\n}\r\n");
    EXPECT_TRUE(hub.has("General/Globals/GeneralSettings.tbl"));
    EXPECT_TRUE(hub.store.folders.count(hub.root));
}

TEST_F(Start, TheWholeCatalogueIsMadeInItsOrder)
{
    run();
    const std::vector<std::string> expected = {"CustomiseUser",
                                               "CustomiseUser/CustomRightClick",
                                               "CustomiseUser/DescriptionTags",
                                               "CustomiseUser/HideShare",
                                               "CustomiseUser/IntroOutro",
                                               "CustomiseUser/IntroOutro/Ascii",
                                               "Communication",
                                               "Communication/AutoCorrect",
                                               "Communication/ChatRooms",
                                               "Communication/Clock",
                                               "Communication/KickBarChanger",
                                               "Communication/MassMessage",
                                               "Communication/MOTD",
                                               "Communication/MOTD/MOTDs",
                                               "Communication/Mute",
                                               "Communication/RotatingMainMessage",
                                               "Communication/RotatingMainMessage/Files",
                                               "Communication/RotatingPrivateMessage",
                                               "Communication/RotatingPrivateMessage/Files",
                                               "Communication/Talk",
                                               "Communication/TopicChanger",
                                               "Communication/WelcomeInfo",
                                               "Communication/Whisper",
                                               "Games",
                                               "Games/Anagrams",
                                               "Games/Anagrams/ScoresArchive",
                                               "Games/CodeBreaker",
                                               "Games/CodeBreaker/ScoresArchive",
                                               "Games/Globals",
                                               "Games/GuessTheNumber",
                                               "Games/GuessTheNumber/ScoresArchive",
                                               "Games/Hangman",
                                               "Games/Hangman/ScoresArchive",
                                               "Games/Hangman/Ascii",
                                               "Games/Numbers",
                                               "Games/Numbers/ScoresArchive",
                                               "Games/RussianRoulette",
                                               "Games/SlotMachine",
                                               "Games/ThreeCardMonty",
                                               "Games/Trivia",
                                               "Games/Trivia/ScoresArchive",
                                               "Games/Trivia/QuestionFiles",
                                               "General",
                                               "General/Bots",
                                               "General/Globals",
                                               "General/PtokaX",
                                               "Language",
                                               "Language/Commands",
                                               "Language/Commands/Files",
                                               "Language/Messages",
                                               "Language/Messages/Files",
                                               "Language/RightClick",
                                               "Language/RightClick/Files",
                                               "Security",
                                               "Security/AntiAdvertise",
                                               "Security/AntiVirus",
                                               "Security/BadNickBlocker",
                                               "Security/ClientChecker",
                                               "Security/CloneBlocker",
                                               "Security/CommandSpy",
                                               "Security/Flood",
                                               "Security/Kick",
                                               "Security/Kick/Logs",
                                               "Security/MainBlock",
                                               "Security/MainCleaner",
                                               "Security/MainLock",
                                               "Security/PrivateHub",
                                               "Security/ProfileRules",
                                               "Security/ProfileRules/Logs",
                                               "Security/PtokaX",
                                               "Security/Registration",
                                               "Security/Registration/Logs",
                                               "Security/Report",
                                               "Security/Rules",
                                               "Security/Rules/Ascii",
                                               "Security/SearchSpy",
                                               "Security/UserLog",
                                               "Security/UserLog/Logs",
                                               "UserActions",
                                               "UserActions/Ascii",
                                               "UserActions/Ascii/Ascii",
                                               "UserActions/Attacks",
                                               "UserActions/Calculator",
                                               "UserActions/DoAction",
                                               "UserActions/Insults",
                                               "UserActions/Jokes",
                                               "UserActions/Limericks",
                                               "UserActions/Proverbs",
                                               "UserActions/Quotations",
                                               "UserActions/Spells",
                                               "UserActions/Spells/Spells",
                                               "UserActions/NickSpells",
                                               "UserActions/NickSpells/NickSpells",
                                               "TheArchive",
                                               "TheArchive/Bookshelf",
                                               "TheArchive/DVDRack",
                                               "TheArchive/Jukebox",
                                               "TheArchive/Songbook",
                                               "TheArchive/Arcade",
                                               "TheArchive/Hyperlink"};
    EXPECT_EQ(madeFolders(), expected);
}

TEST_F(Start, AFoldersRoutineRunsRightAfterItsFolder)
{
    run();
    const auto made =
        std::find(hub.store.log.begin(), hub.store.log.end(), "make " + hub.root + "/General/Globals");
    ASSERT_NE(made, hub.store.log.end());
    EXPECT_EQ(*(made + 1), "write " + hub.root + "/General/Globals/GeneralSettings.tbl");
    EXPECT_EQ(*(made + 2), "write " + hub.root + "/General/Globals/Switches.tbl");
    EXPECT_EQ(*(made + 3), "write " + hub.root + "/General/Globals/EnabledRightClicks.tbl");
}

TEST_F(Start, EachFoldersFilesAreWrittenBeforeTheNextFolderIsMade)
{
    run();
    const auto& paths = hub.files.paths();
    auto line = std::find(hub.store.log.begin(), hub.store.log.end(),
                          "make " + paths.inSettings(folderCatalogue().front().folders.front()));
    for (const FunctionDeclaration& row : folderCatalogue()) {
        if (row.folders.empty())
            continue; // its files stand in a folder of the function before
        for (const auto& folder : row.folders)
            ASSERT_EQ(*line++, "make " + paths.inSettings(folder));
        const auto isOfTheRow = [&] {
            return std::any_of(row.folders.begin(), row.folders.end(), [&](const std::string& folder) {
                return line->starts_with("write " + paths.inSettings(folder) + '/');
            });
        };
        EXPECT_EQ(isOfTheRow(), !row.build.empty()) << *line;
        while (isOfTheRow())
            ++line;
    }
    EXPECT_EQ(*line, "write " + hub.root + "/General/Globals/Version.tbl");
}

TEST_F(Start, TheVersionRecordComesBehindTheTreeAndTheProfileCopyBehindIt)
{
    setProfiles(1);
    run();
    ASSERT_GE(hub.store.log.size(), 2U);
    EXPECT_EQ(*(hub.store.log.end() - 2), "write " + hub.root + "/General/Globals/Version.tbl");
    EXPECT_EQ(hub.store.log.back(), "write " + hub.root + "/General/PtokaX/Profiles.xml");
    EXPECT_EQ(hub.file("General/PtokaX/Profiles.xml"), "\r\n<Name>P0</Name>\r\n");
}

TEST_F(Start, ASecondOneAsksNothingAndWritesNothing)
{
    setProfiles(2);
    firstStart();
    EXPECT_EQ(run(), StartResult::Current);
    EXPECT_TRUE(asked.empty());
    EXPECT_TRUE(hub.store.log.empty());
}

TEST_F(Start, AnyOtherVersionHigherOrLowerRebuilds)
{
    firstStart();
    for (const char* other : {"6.2.0", "4.2.0", "5.3.0", "5.1.0", "5.2.1", "5.2", ""}) {
        hub.file("General/Globals/Version.tbl") =
            std::string("tVersion = {\r\n\tsVersion = \"") + other + "\",\r\n}\r\n";
        EXPECT_EQ(run(), StartResult::Rebuilt) << other;
        EXPECT_EQ(run(), StartResult::Current) << other;
    }
}

TEST_F(Start, MoreProfilesThanTheSavedCopyRebuild)
{
    setProfiles(2);
    firstStart();
    setProfiles(3);
    EXPECT_EQ(run(), StartResult::Rebuilt);
    EXPECT_EQ(asked, Asked{"Morvaleth's Quillfen: PtokaX Profile Change Detected"});
    EXPECT_EQ(texts.back(), "PtokaX Profile change detected. Settings must be rebuilt; continue?");
    EXPECT_EQ(run(), StartResult::Current);
}

TEST_F(Start, ANewProfileJoinsEveryTableAndTheRestKeepsItsValues)
{
    const auto isReset = [](const std::string& key) {
        const char* const tables[] = {"tSwitches.",
                                      "tEnabledRightClicks.",
                                      "tRegistrationSettings.",
                                      "tProfileRulesRedirectCounter.",
                                      "tMOTDSettings.tAll.",
                                      "tClientCheckerSettings.tBlock.",
                                      "tPrivateHubSettings.tRestrictPMs.",
                                      "tSlotMachineSettings.tResults."};
        return std::any_of(std::begin(tables), std::end(tables),
                           [&key](const char* table) { return key.starts_with(table); });
    };
    setProfiles(3);
    firstStart();
    const auto fresh = tree();
    hub.store.files.clear();
    setProfiles(2);
    firstStart();
    for (auto& [path, bytes] : hub.store.files)
        turnFlags(bytes);
    const auto before = tree();
    setProfiles(3);
    ASSERT_EQ(run(), StartResult::Rebuilt);
    const auto after = tree();
    EXPECT_GT(before.size(), 130U);
    std::size_t joined = 0;
    for (const auto& [path, values] : before) {
        LuaValues expected = fresh.at(path);
        joined += expected.size() - values.size();
        for (const auto& [key, value] : values) {
            if (!isReset(key))
                expected[key] = value;
        }
        EXPECT_EQ(after.at(path), expected) << path;
    }
    EXPECT_GT(joined, 150U);
}

TEST_F(Start, TheProfileQuestionDoesNotFollowARebuildForTheVersion)
{
    setProfiles(2);
    firstStart();
    setProfiles(3);
    version = "5.3.0";
    EXPECT_EQ(run(), StartResult::Rebuilt);
    EXPECT_EQ(asked, Asked{"Morvaleth's Quillfen: Version Change Detected"});
}

TEST_F(Start, FewerOrRenamedProfilesAskNothingAndLeaveTheSavedCopy)
{
    setProfiles(3);
    firstStart();
    const std::string copy = hub.file("General/PtokaX/Profiles.xml");
    setProfiles(2);
    EXPECT_EQ(run(), StartResult::Current);
    hub.store.files[hubFile] = "<Name>A</Name>\n<Name>B</Name>\n<Name>C</Name>\n";
    EXPECT_EQ(run(), StartResult::Current);
    EXPECT_EQ(hub.file("General/PtokaX/Profiles.xml"), copy);
}

TEST_F(Start, TheProfilesOfAHubOfTodayAreComparedAndSavedLikeTheOthers)
{
    std::string& binary = hub.store.files["/hub/cfg/Profiles.pxb"];
    binary = test::binaryProfiles({"A", "B"});
    firstStart();
    EXPECT_EQ(hub.profiles.names(), (std::vector<std::string>{"Unregistered", "A", "B"}));
    EXPECT_EQ(hub.file("General/PtokaX/Profiles.xml"), "\r\n<Name>A</Name>\r\n<Name>B</Name>\r\n");
    EXPECT_EQ(run(), StartResult::Current);
    binary = test::binaryProfiles({"A", "C"});
    EXPECT_EQ(run(), StartResult::Current) << "no rise";
    EXPECT_EQ(profileNotices(hub.store, hub.files.paths()).size(), 1U);
    binary = test::binaryProfiles({"A", "C", "D"});
    EXPECT_EQ(run(), StartResult::Rebuilt);
    EXPECT_EQ(asked, Asked{"Morvaleth's Quillfen: PtokaX Profile Change Detected"});
    EXPECT_TRUE(profileNotices(hub.store, hub.files.paths()).empty()) << "until the next rebuild";
    EXPECT_EQ(run(), StartResult::Current);
}

TEST_F(Start, ARefusalChangesNothingAndComesAgain)
{
    setProfiles(2);
    firstStart();
    setProfiles(3);
    agree = false;
    const auto before = hub.store.files;
    EXPECT_EQ(run(), StartResult::Refused);
    EXPECT_EQ(run(), StartResult::Refused);
    EXPECT_EQ(hub.store.files, before);
    version = "5.3.0";
    EXPECT_EQ(run(), StartResult::Refused);
    EXPECT_EQ(hub.store.files, before);
}

TEST_F(Start, TheSavedCopyIsReadBelowTheHubsScriptsAndNotBelowTheProgramsFolder)
{
    hub.store.folders.insert({"/hub/other", "/hub/other/Morvaleth's Quillfen"});
    const SettingsFiles files{hub.store, SettingsPaths("/hub/other")};
    const auto start = [&] { return test::buildTree(files, hub.profiles, version); };
    setProfiles(1);
    EXPECT_EQ(start(), StartResult::Rebuilt);
    EXPECT_EQ(start(), StartResult::Rebuilt) << "its own copy is not the one that is read";
    hub.file("General/PtokaX/Profiles.xml") =
        hub.store.files["/hub/other/Morvaleth's Quillfen/Settings/General/PtokaX/Profiles.xml"];
    EXPECT_EQ(start(), StartResult::Current);
}

TEST_F(Start, AnUnreadableHubFileAsksNothingAndLeavesNoCopy)
{
    firstStart();
    EXPECT_FALSE(hub.has("General/PtokaX/Profiles.xml"));
    EXPECT_EQ(run(), StartResult::Current);
    EXPECT_EQ(hub.profiles.count(), 1U);
}

TEST_F(Start, TheNewsFoldersAreMadeOnEveryStart)
{
    firstStart();
    hub.store.folders.erase("/hub/scripts/Morvaleth's Scripts/News");
    hub.store.folders.erase("/hub/scripts/Morvaleth's Scripts");
    EXPECT_EQ(run(), StartResult::Current);
    EXPECT_EQ(hub.store.log,
              (Asked{"make /hub/scripts/Morvaleth's Scripts", "make /hub/scripts/Morvaleth's Scripts/News"}));
}

TEST_F(Start, WithoutTheScriptsOwnFolderNothingIsTouched)
{
    hub.store.folders.erase(hub.root);
    hub.store.folders.erase(hub.script);
    try {
        run();
        FAIL() << "no error";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.path(), hub.script);
        EXPECT_EQ(error.reason(), "The hub script's folder is missing");
    }
    EXPECT_TRUE(asked.empty());
    EXPECT_TRUE(hub.store.log.empty());
}

TEST_F(Start, ARebuildIsKeptUnderItsReason)
{
    test::MemoryStore versionDisk;
    versionDisk.folders = {"", "/data"};
    VersionStore versions(versionDisk, "/data");
    History history(hub.store, hub.root, versions);
    setProfiles(1);
    firstStart();
    hub.files.store().keepVersionsIn(&history);
    const auto reason = [&] {
        EXPECT_EQ(run(), StartResult::Rebuilt);
        for (const VersionEntry& entry : versions.entries().entries) { // the newest comes first
            if (entry.cause.kind == Cause::Kind::Rebuild)
                return entry.cause.words;
        }
        return std::string("nothing was kept");
    };
    setProfiles(2);
    EXPECT_EQ(reason(), "Rebuild for more profiles");
    hub.file("General/Globals/Version.tbl") = "tVersion = {\r\n\tsVersion = \"1.9\",\r\n}\r\n";
    EXPECT_EQ(reason(), "Rebuild from 1.9");
    hub.file("General/Globals/Version.tbl") = "";
    EXPECT_EQ(reason(), "Rebuild");
}

TEST_F(Start, AFailureAtAnyCallStopsThereAndNamesTheFile)
{
    setProfiles(1);
    run();
    const auto calls = static_cast<int>(hub.store.log.size());
    ASSERT_GT(calls, 100);
    for (int failing = 0; failing < calls; ++failing) {
        test::Hub fresh;
        fresh.store.files[hubFile] = "<Name>P0</Name>\r\n";
        fresh.store.failingCall = failing;
        try {
            test::buildTree(fresh, version);
            FAIL() << "no error at call " << failing;
        } catch (const StoreError& error) {
            EXPECT_TRUE(hub.store.log[static_cast<std::size_t>(failing)].ends_with(" " + error.path()));
            EXPECT_EQ(error.reason(), "No space left on device");
        }
        EXPECT_EQ(static_cast<int>(fresh.store.log.size()), failing);
    }
}

} // namespace
} // namespace quillfen
