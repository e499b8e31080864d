#include "functions/games/anagrams.h"
#include "functions/games/codebreaker.h"
#include "functions/games/guessthenumber.h"
#include "functions/games/hangman.h"
#include "settings/tableindex.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>

namespace quillfen {
namespace {

using test::golden;
using test::sameBytes;

struct QuizGameCase
{
    const char* folder;
    const char* name; ///< of files and tables
    const TableFile& (*settings)();
    FunctionDeclaration (*function)();
    std::size_t keys;
};

void PrintTo(const QuizGameCase& game, std::ostream* stream)
{
    *stream << game.folder;
}

class QuizGames : public testing::TestWithParam<QuizGameCase>
{
protected:
    test::Hub hub{"Games"};
    const QuizGameCase& game = GetParam();
    const std::string base = std::string("Games/") + game.folder + "/" + game.name;
    const std::string table = std::string("t") + game.name;
};

INSTANTIATE_TEST_SUITE_P(
    All, QuizGames,
    testing::Values(QuizGameCase{"Hangman", "Hangman", hangmanSettings, hangmanFunction, 18},
                    QuizGameCase{"Anagrams", "Anagram", anagramSettings, anagramsFunction, 17},
                    QuizGameCase{"CodeBreaker", "CodeBreaker", codeBreakerSettings, codeBreakerFunction, 18},
                    QuizGameCase{"GuessTheNumber", "GuessTheNumber", guessTheNumberSettings,
                                 guessTheNumberFunction, 18}),
    [](const auto& each) { return std::string(each.param.name); });

TEST(GuessTheNumber, CallsItsCountsOfScoresTheOtherWayRound)
{
    std::map<std::string, std::string> labels;
    for (const Setting& each : guessTheNumberSettings().settings) {
        if (const auto* field = std::get_if<setting::Field>(&each))
            labels[field->key] = field->label;
    }
    EXPECT_EQ(labels["iScores"], "Scores");
    EXPECT_EQ(labels["iTopScores"], "End Of Game Scores");
}

TEST_P(QuizGames, AFreshBuildWritesTheSettingsInTheFormsOrder)
{
    hub.store.folders.insert(hub.root + "/Games/" + game.folder);
    hub.store.folders.insert(hub.root + "/Games/Hangman/Ascii");
    buildFunction(game.function(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(base + "Settings.tbl"),
                          golden(std::string("games/") + game.name + "Settings.build.tbl")));
    EXPECT_EQ(hub.file(base + "Players.tbl"), table + "Players = {\r\n}\r\n");
    EXPECT_EQ(hub.file(base + "ScoresArchiveIndex.tbl"), table + "ScoresArchiveIndex = {\r\n}\r\n");
    EXPECT_EQ(hub.file(base + "Scores.tbl"), table + "Scores = {\r\n\tn=0\r\n}\r\n");
}

TEST_P(QuizGames, ARebuildKeepsEveryValueAndTheOtherFiles)
{
    hub.store.folders.insert(hub.root + "/Games/" + game.folder);
    hub.store.folders.insert(hub.root + "/Games/Hangman/Ascii");
    const std::string edited = golden(std::string("games/") + game.name + "Settings.save.tbl");
    hub.file(base + "Settings.tbl") = edited;
    for (const char* other : {"Players.tbl", "ScoresArchiveIndex.tbl", "Scores.tbl"})
        hub.file(base + other) = "mine";
    buildFunction(game.function(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(base + "Settings.tbl"), edited));
    for (const char* other : {"Players.tbl", "ScoresArchiveIndex.tbl", "Scores.tbl"})
        EXPECT_EQ(hub.file(base + other), "mine");
}

TEST_P(QuizGames, TheHubScriptSeesWhatTheReadersSee)
{
    for (const char* way : {".build.tbl", ".save.tbl"}) {
        const std::string bytes = golden(std::string("games/") + game.name + "Settings" + way);
        const auto seen = test::luaValues(bytes);
        EXPECT_EQ(seen.size(), game.keys);
        for (const auto& [key, value] : seen)
            EXPECT_EQ(value, TableIndex(bytes).value(key.substr(key.find('.') + 1))) << key;
    }
}

/// What a game's settings say of themselves, by key.
std::map<std::string, std::string_view> sentencesOf(const TableFile& file)
{
    std::map<std::string, std::string_view> sentences;
    for (const Setting& each : file.settings) {
        if (const auto* field = std::get_if<setting::Field>(&each))
            sentences[field->key] = field->explanation;
    }
    return sentences;
}

TEST_P(QuizGames, ExplainsTheCountsOfScoresByTheirKeysWhateverTheirCaptionsSay)
{
    auto sentences = sentencesOf(game.settings());
    EXPECT_EQ(sentences["iScores"], "Sets how many scores are shown at the end of a game.");
    EXPECT_EQ(sentences["iTopScores"], "Sets how many top scores are shown.");
}

class QuizWords : public testing::Test
{
protected:
    test::Hub hub{"Games", "Games/Hangman", "Games/Hangman/Ascii", "Games/Anagrams"};
};

TEST_F(QuizWords, AFreshBuildSeedsOneWord)
{
    buildFunction(hangmanFunction(), hub.files, hub.profiles);
    buildFunction(anagramsFunction(), hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Games/Hangman/HangmanWords.lst"), "quillfen\r\n\r\n");
    EXPECT_EQ(hub.file("Games/Anagrams/AnagramWords.lst"), "quillfen\r\n\r\n");
    EXPECT_EQ(hangmanWords().load(hub.files, hub.profiles), (std::vector<CellRow>{{{"quillfen", ""}}}));
}

TEST_F(QuizWords, ARebuildLeavesTheWordsAlone)
{
    hub.file("Games/Hangman/HangmanWords.lst") = "mine";
    hub.file("Games/Anagrams/AnagramWords.lst") = "mine";
    buildFunction(hangmanFunction(), hub.files, hub.profiles);
    buildFunction(anagramsFunction(), hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Games/Hangman/HangmanWords.lst"), "mine");
    EXPECT_EQ(hub.file("Games/Anagrams/AnagramWords.lst"), "mine");
}

TEST_F(QuizWords, AreReadOneALineWhateverTheyHold)
{
    hub.file("Games/Anagrams/AnagramWords.lst") = "cat\r\nstar*fish\r\n\r\na=b\r\n";
    EXPECT_EQ(anagramWords().load(hub.files, hub.profiles),
              (std::vector<CellRow>{{{"cat", ""}}, {{"star*fish", ""}}, {{"a=b", ""}}}));
}

TEST_F(QuizWords, AreSavedOneALineTheLastWithoutALineEndOfItsOwn)
{
    anagramWords().save(hub.files, hub.profiles, {{{"one", ""}}, {{"two", ""}}});
    EXPECT_EQ(hub.file("Games/Anagrams/AnagramWords.lst"), "one\r\ntwo\r\n");
}

TEST_F(QuizWords, AFreshBuildMakesTheFourteenGallowsEmptyAndKeepsThoseThatAreThere)
{
    hub.file("Games/Hangman/Ascii/7.asc") = "mine";
    buildFunction(hangmanFunction(), hub.files, hub.profiles);
    for (int picture = 0; picture <= 13; ++picture) {
        const std::string path = "Games/Hangman/Ascii/" + std::to_string(picture) + ".asc";
        ASSERT_TRUE(hub.has(path)) << picture;
        EXPECT_EQ(hub.file(path), picture == 7 ? "mine" : "\r\n");
    }
    EXPECT_FALSE(hub.has("Games/Hangman/Ascii/14.asc"));
}

TEST_F(QuizWords, TheSliderCountsTheGallowsFromTheOtherEnd)
{
    EXPECT_EQ(gallowsFile(0), R"(Games\Hangman\Ascii\13.asc)");
    EXPECT_EQ(gallowsFile(13), R"(Games\Hangman\Ascii\0.asc)");
}

TEST_F(QuizWords, FiftyThousandOfThemComeBack)
{
    std::vector<CellRow> rows;
    for (int number = 0; number < 50000; ++number)
        rows.push_back({{"word" + std::to_string(number), ""}});
    hangmanWords().save(hub.files, hub.profiles, rows);
    EXPECT_EQ(hangmanWords().load(hub.files, hub.profiles), rows);
}

} // namespace
} // namespace quillfen
