#include "check/checkcommand.h"
#include "check/nodeoffile.h"
#include "check/treecheck.h"
#include "store/diskstore.h"
#include "support/freshtree.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace quillfen {
namespace {

using Lines = std::vector<std::string>;

/// A hub's tree as a first start builds it.
class TreeCheck : public testing::Test
{
protected:
    void build(int profiles)
    {
        std::string& bytes = hub.store.files["/hub/cfg/Profiles.xml"];
        for (int profile = 0; profile < profiles; ++profile)
            bytes += "<Name>P" + std::to_string(profile) + "</Name>\r\n";
        test::buildTree(hub);
    }

    /// Each finding with the first words of what is told of it.
    Lines found() const
    {
        Lines lines;
        for (const Finding& finding : checkTree(hub.files))
            lines.push_back(finding.file + ':' + std::to_string(finding.line) + ": " +
                            finding.words.substr(0, finding.words.find(". ")));
        return lines;
    }

    /// Replaces what stands once in a file.
    void change(const std::string& file, const std::string& old, const std::string& by)
    {
        std::string& bytes = hub.file(file);
        const auto at = bytes.find(old);
        ASSERT_NE(at, std::string::npos) << file << " has no " << old;
        bytes.replace(at, old.size(), by);
    }

    /// The program's check of the tree: what it prints, what it complains of, what it ends with.
    struct Answer
    {
        std::string printed;
        std::string problems;
        int result;

        bool operator==(const Answer&) const = default;
    };

    Answer check(const Lines& arguments)
    {
        std::ostringstream out;
        std::ostringstream problems;
        const int result = runCheck(hub.store, "/hub/scripts", arguments, out, problems);
        return {out.str(), problems.str(), result};
    }

    test::Hub hub;
};

class TreeCheckOfProfiles : public TreeCheck, public testing::WithParamInterface<int>
{
};

INSTANTIATE_TEST_SUITE_P(Profiles, TreeCheckOfProfiles, testing::Values(1, 5, 64),
                         [](const auto& each) { return "Of" + std::to_string(each.param); });

TEST_P(TreeCheckOfProfiles, FindsNothingInAFreshTreeNorInARebuiltOne)
{
    build(GetParam());
    EXPECT_EQ(found(), Lines{});
    test::buildTree(hub, "5.3.0");
    EXPECT_EQ(found(), Lines{});
}

TEST_F(TreeCheck, TellsOfLinesThatAreNeverReadWhereTheEditorStopsReading)
{
    build(3);
    std::string& questions = hub.file("Games/Trivia/QuestionFiles/TriviaQuestions.lst");
    for (int line = 0; line <= 5000; ++line)
        questions += "A:Who barks?*A dog\r\n";
    EXPECT_EQ(found(), Lines{}) << "lists are read to their end";
    std::string& grid = hub.file("Communication/Mute/Mute.tbl");
    for (int line = 0; line <= 5000; ++line)
        grid += "\r\n";
    EXPECT_EQ(found().size(), 1U);
}

TEST_F(TreeCheck, FindsEachOfTwelveFaultsWhereItStands)
{
    build(3);
    change("General/Globals/GeneralSettings.tbl", "sPrefix = \"+\"", "sPrefix = \"+\"b\"");
    change("Security/AntiVirus/AntiVirusSettings.tbl", "sAction = \"D\"", "sAction = \"D\\\"");
    change("Security/Kick/KickSettings.tbl", "iKicksMakeBan = 5", "iKicksMakeBan = ");
    change("Games/SlotMachine/SlotMachineSettings.tbl", "iCreditPlay = 2", "iCreditPlay = 2x");
    change("Games/ThreeCardMonty/ThreeCardMontySettings.tbl", "iWager = 1", "iWager = one");
    hub.file("Security/Flood/FloodSettings.tbl") += "}\r\n";
    change("Games/ThreeCardMonty/ThreeCardMontyWin.tbl", "}", "");
    change("Games/RussianRoulette/RussianRouletteLive.tbl", "survived", "\\survived");
    change("Games/RussianRoulette/RussianRouletteDie.tbl", "\"You're", "\" You're");
    hub.file("Games/Trivia/QuestionFiles/TriviaQuestions.lst") =
        "A:Who says miaow?*A cat\r\nA:Who barks?*A dog\r\n";
    hub.store.files.erase(hub.root + "/Communication/Clock/ClockSettings.tbl");
    for (int line = 0; line <= 5000; ++line)
        hub.file("Communication/MOTD/MOTDs/long.txt") += "line\r\n";
    EXPECT_EQ(
        found(),
        (Lines{
            R"(Communication\Clock\ClockSettings.tbl:0: the file is missing, and the editor shows zeros and empty texts for it)",
            R"(Communication\MOTD\MOTDs\long.txt:5001: the text has more than 5,000 lines, so that the editor shows nothing of it)",
            R"(Games\RussianRoulette\RussianRouletteDie.tbl:2: the text begins or ends with a blank, a tab, a comma or a quote, which the next load takes away)",
            R"(Games\RussianRoulette\RussianRouletteLive.tbl:2: with Lua 5.3 the file won't load: a backslash stands before a character that it doesn't go with)",
            R"(Games\SlotMachine\SlotMachineSettings.tbl:4: the file won't load: what begins with a digit here is no number)",
            R"(Games\ThreeCardMonty\ThreeCardMontySettings.tbl:3: a word without quotes is nothing to the hub script)",
            R"(Games\ThreeCardMonty\ThreeCardMontyWin.tbl:1: the file won't load: the table that opens here is never closed)",
            R"(Games\Trivia\QuestionFiles\TriviaQuestions.lst:1: the editor doesn't show a line that ends in "t", and the next save drops it)",
            R"(General\Globals\GeneralSettings.tbl:3: the file won't load: a quote inside the text ends it there)",
            R"(Security\AntiVirus\AntiVirusSettings.tbl:2: the file won't load: a backslash before the closing quote makes the quote a part of the text)",
            R"(Security\Flood\FloodSettings.tbl:27: the file won't load: a brace closes a table that was never opened)",
            R"(Security\Kick\KickSettings.tbl:3: the file won't load: there is no value)"}));
}

TEST_F(TreeCheck, TellsOfAFileThatNobodyMayRead)
{
    build(1);
    hub.store.unreadable = {hub.root + "/Games/Trivia/TriviaSettings.tbl"};
    const auto lines = found();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(lines[0].starts_with("Games\\Trivia\\TriviaSettings.tbl:0: the file can't be read"))
        << lines[0];
}

TEST_F(TreeCheck, HoldsSettingsToWhatTheirFormsDeclare)
{
    build(1);
    change("Security/Kick/KickSettings.tbl", "iKicksMakeBan = 5", "iKicksMakeBan = 51");
    change("Security/UserLog/UserLogSettings.tbl", "iCleanerTime = 2355", "iCleanerTime = 1260");
    change("Security/AntiVirus/AntiVirusSettings.tbl", "sAction = \"D\"", "sAction = \"X\"");
    EXPECT_EQ(found(),
              (Lines{R"(Security\AntiVirus\AntiVirusSettings.tbl:2: "X" stands for none of the choices)",
                     R"(Security\Kick\KickSettings.tbl:3: 51 is outside its range)",
                     R"(Security\UserLog\UserLogSettings.tbl:4: 1260 is no time of day)"}));
}

TEST_F(TreeCheck, PrintsAFindingALineAndEndsWithOne)
{
    build(1);
    change("Games/RussianRoulette/RussianRouletteDie.tbl", "\"You're", "\" You're");
    const std::string line =
        "/Games/RussianRoulette/RussianRouletteDie.tbl:2: the text begins or ends with a blank, a tab, "
        "a comma or a quote, which the next load takes away. Take it out.\n";
    EXPECT_EQ(check({}), (Answer{hub.root + line, "", 1}));
    EXPECT_EQ(check({hub.root}), (Answer{hub.root + line, "", 1}));
}

TEST_F(TreeCheck, PrintsNothingAndEndsWithZeroWhenAllIsWell)
{
    build(1);
    EXPECT_EQ(check({}), (Answer{"", "", 0}));
}

TEST_F(TreeCheck, EndsWithTwoWhereThereIsNoTree)
{
    EXPECT_EQ(check({}), (Answer{"", "There is no settings tree in " + hub.root + '\n', 2}));
    EXPECT_EQ(check({"/elsewhere"}), (Answer{"", "There is no settings tree in /elsewhere\n", 2}));
    EXPECT_EQ(check({"/a", "/b"}), (Answer{"", "One settings folder at a time, please.\n", 2}));
}

TEST_F(TreeCheck, TakesNoSecondFolderThoughTheFirstHasATree)
{
    build(1);
    EXPECT_EQ(check({hub.root, "/b"}), (Answer{"", "One settings folder at a time, please.\n", 2}));
}

TEST_F(TreeCheck, TellsWhereAGridHasMoreLinesThanItsReadersLookAt)
{
    build(70);
    const Lines lines = found();
    EXPECT_EQ(std::count(
                  lines.begin(), lines.end(),
                  "Security\\Kick\\KickCanBan.tbl:5001: the editor reads no further than line 5,000, and its "
                  "next save loses what stands below"),
              1);
}

/// The form of each file, by its node.
TEST_F(TreeCheck, KnowsTheNodeWhoseFormShowsAFile)
{
    build(2);
    const auto node = [this](const char* file) { return nodeOfFile(hub.files, hub.profiles, file); };
    EXPECT_EQ(node(R"(Security\Kick\KickSettings.tbl)"), "Security~Kicks~Settings");
    EXPECT_EQ(node(R"(Security\Kick\KickAscii.asc)"), "Security~Kicks~Settings");
    EXPECT_EQ(node(R"(Security\Kick\KickCanBan.tbl)"), "Security~Kicks~Permissions");
    EXPECT_EQ(node(R"(General\Globals\Switches.tbl)"), "General~Switches");
    EXPECT_EQ(node(R"(Communication\WelcomeInfo\WelcomeInfoNetworkHubs.tbl)"),
              "Communication~WelcomeInfo~NetworkHubs");
    EXPECT_EQ(node(R"(Communication\Portal\PortalSettings.tbl)"), "Communication~Portal");
    EXPECT_EQ(node(R"(CustomiseUser\IntroOutro\AsciiIntroIndex.tbl)"), "CustomiseUser~IntroOutro~Ascii");
    EXPECT_EQ(node(R"(CustomiseUser\IntroOutro\Ascii\one.asc)"), "CustomiseUser~IntroOutro~Ascii");
    EXPECT_EQ(node(R"(CustomiseUser\DescriptionTags\DescriptionTagSettings.tbl)"),
              "CustomiseUser~DescriptionTags");
    EXPECT_EQ(node(R"(Communication\MassMessage\Passive.asc)"), "Communication~MassMessage");
    EXPECT_EQ(node(R"(Communication\MOTD\MOTDSettings.tbl)"), "Communication~MOTD");
    EXPECT_EQ(node(R"(Communication\MOTD\MOTDs\all.asc)"), "Communication~MOTD");
    EXPECT_EQ(node(R"(Communication\RotatingMainMessage\Files\one.asc)"),
              "Communication~RotatingMainMessage");
    EXPECT_EQ(node(R"(Games\Hangman\Ascii\0.asc)"), "Games~Hangman");
    EXPECT_EQ(node(R"(Games\Trivia\TriviaQuestionFiles.tbl)"), "Games~Trivia~Questions");
    EXPECT_EQ(node(R"(Games\Trivia\QuestionFiles\music.lst)"), "Games~Trivia~Questions");
    EXPECT_EQ(node(R"(Security\Rules\Ascii\-1.asc)"), "Security~Rules");
    EXPECT_EQ(node(R"(UserActions\Ascii\Ascii\one.asc)"), "UserActions~Ascii");
    EXPECT_EQ(node(R"(UserActions\Spells\Spells\Frog.tbl)"), "UserActions~Spells~SpellBook");
    EXPECT_EQ(node(R"(UserActions\NickSpells\NickSpells\Frog.tbl)"), "UserActions~NickSpells~SpellBook");
    EXPECT_EQ(node(R"(TheArchive\Jukebox\JukeboxItemOfTheWeek.tbl)"), "Jukebox~LinkOfTheWeek");
    EXPECT_EQ(node(R"(Language\Commands\CommandLanguages.tbl)"), "General~Commands");
    EXPECT_EQ(node(R"(Language\Commands\Files\DEFAULT.tbl)"), "General~Commands");
    EXPECT_EQ(node(R"(Language\Messages\Files\DEFAULT.tbl)"), "General~Messages");
    EXPECT_EQ(node(R"(Language\RightClick\RightClickLanguages.tbl)"), "General~RightClicks");
    EXPECT_EQ(node(R"(Language\RightClick\Files\DEFAULT.tbl)"), "General~RightClicks");
    EXPECT_EQ(node(R"(No\Such.tbl)"), "");
    for (const char* own : {R"(Games\Anagrams\AnagramScores.tbl)", R"(Games\Hangman\HangmanPlayers.tbl)",
                            R"(Games\Trivia\TriviaScores.tbl)", R"(TheArchive\Hyperlink\HyperlinkItems.tbl)"})
        EXPECT_EQ(node(own), "") << "the hub script's own";
}

TEST_F(TreeCheck, WritesNothing)
{
    build(1);
    const auto files = hub.store.files;
    hub.store.log.clear();
    check({});
    EXPECT_EQ(hub.store.files, files);
    EXPECT_EQ(hub.store.log, Lines{});
}

TEST(SampleHub, HasNoFindingsOnceItsTreeIsBuilt)
{
    namespace fs = std::filesystem;
    const fs::path folder =
        fs::path(testing::TempDir()) / ("quillfen-check-" + std::to_string(std::random_device()()));
    fs::copy(QUILLFEN_SAMPLE_HUB, folder, fs::copy_options::recursive);
    DiskStore disk;
    const SettingsFiles files(disk, SettingsPaths((folder / "scripts").string()));
    HubProfiles profiles;
    test::buildTree(files, profiles);
    std::ostringstream out;
    EXPECT_EQ(runCheck(disk, "/elsewhere", {files.paths().settingsRoot()}, out, out), AllLoads);
    EXPECT_EQ(out.str(), "");
    fs::remove_all(folder);
}

} // namespace
} // namespace quillfen
