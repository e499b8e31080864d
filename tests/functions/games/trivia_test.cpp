#include "functions/games/shared/questions.h"
#include "functions/games/shared/quizpattern.h"
#include "functions/games/trivia.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::sameBytes;

class Trivia : public testing::Test
{
protected:
    test::Hub hub{"Games", "Games/Trivia", "Games/Trivia/QuestionFiles"};
    std::string& settings = hub.file("Games/Trivia/TriviaSettings.tbl");
    std::string& questionFiles = hub.file("Games/Trivia/TriviaQuestionFiles.tbl");
};

TEST_F(Trivia, SettingsAreDeclaredWithoutFault)
{
    EXPECT_EQ(triviaSettings().settings.size(), 21U);
}

TEST_F(Trivia, AFreshBuildWritesTheSettingsInItsOwnOrder)
{
    hub.store.files.clear();
    buildFunction(triviaFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(
        sameBytes(hub.file("Games/Trivia/TriviaSettings.tbl"), golden("games/TriviaSettings.build.tbl")));
}

TEST_F(Trivia, ARebuildKeepsValuesAndReordersTheKeys)
{
    settings = golden("games/TriviaSettings.save.tbl");
    buildFunction(triviaFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(
        settings, "tTriviaSettings = {\r\n\tsHintChar = \"*\",\r\n\tbManualStart = 1,\r\n"
                  "\tbOpOnlyStart = 0,\r\n\tbOpOnlyStop = 0,\r\n\tiFormat = 2,\r\n\tiHintTime = 30,\r\n"
                  "\tiMaxHints = 5,\r\n\tiQuestions = 15,\r\n\tiQuestionsPause = 10,\r\n\tiTimeOut = 5,\r\n"
                  "\tiBonusTime = 45,\r\n\tiPoints = 1,\r\n\tiScores = 25,\r\n\tiTopScores = 10,\r\n"
                  "\tiAutoStartDelay = 92,\r\n\tiScoring = 0,\r\n\tbPlayInMain = 1,\r\n"
                  "\tbAutoClearScores = 1,\r\n\tbArchiveScores = 1,\r\n\tiArchiveScores = 6,\r\n"
                  "\tbShowOnlyOneHint = 0,\r\n}\r\n"));
}

TEST_F(Trivia, AFreshBuildMakesTheOtherFiles)
{
    hub.store.files.clear();
    buildFunction(triviaFunction(), hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Games/Trivia/TriviaPlayers.tbl"), "tTriviaPlayers = {\r\n}\r\n");
    EXPECT_EQ(hub.file("Games/Trivia/TriviaScoresArchiveIndex.tbl"),
              "tTriviaScoresArchiveIndex = {\r\n}\r\n");
    EXPECT_EQ(hub.file("Games/Trivia/TriviaScores.tbl"), "tTriviaScores = {\r\n\tn=0\r\n}\r\n");
    EXPECT_EQ(hub.file("Games/Trivia/TriviaQuestionFiles.tbl"),
              "tTriviaQuestionFiles = {\r\n[\"sDefaultQuestionFile\"] = \"TriviaQuestions\",\r\n}\r\n");
    const std::string& seed = hub.file("Games/Trivia/QuestionFiles/TriviaQuestions.lst");
    EXPECT_TRUE(seed.starts_with("Misc:"));
    EXPECT_TRUE(seed.ends_with("*mort\r\n\r\n")); // the row's line end, and the writer's
    EXPECT_EQ(std::count(seed.begin(), seed.end(), '*'), 1);
    EXPECT_NE(seed.find("Tavis Orlemon"), std::string::npos);
}

TEST_F(Trivia, ARebuildLeavesTheOtherFilesAlone)
{
    for (const char* name :
         {"TriviaPlayers.tbl", "TriviaScoresArchiveIndex.tbl", "TriviaScores.tbl", "TriviaQuestionFiles.tbl"})
        hub.file(std::string("Games/Trivia/") + name) = "mine";
    buildFunction(triviaFunction(), hub.files, hub.profiles);
    for (const char* name :
         {"TriviaPlayers.tbl", "TriviaScoresArchiveIndex.tbl", "TriviaScores.tbl", "TriviaQuestionFiles.tbl"})
        EXPECT_EQ(hub.file(std::string("Games/Trivia/") + name), "mine");
}

TEST_F(Trivia, TheSeededQuestionsComeOnlyTogetherWithTheTableOfFiles)
{
    questionFiles = "tTriviaQuestionFiles = {\r\n}\r\n";
    buildFunction(triviaFunction(), hub.files, hub.profiles);
    EXPECT_FALSE(hub.has("Games/Trivia/QuestionFiles/TriviaQuestions.lst"));
}

TEST_F(Trivia, ABuildOfTheTableKeepsAQuestionFileThatIsThere)
{
    hub.store.files.clear();
    hub.file("Games/Trivia/QuestionFiles/TriviaQuestions.lst") = "mine";
    buildFunction(triviaFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(hub.has("Games/Trivia/TriviaQuestionFiles.tbl"));
    EXPECT_EQ(hub.file("Games/Trivia/QuestionFiles/TriviaQuestions.lst"), "mine");
}

TEST_F(Trivia, QuestionFilesAreReadFromTheFormsTableAndFromTheBuilds)
{
    for (const char* line :
         {"\tsDefaultQuestionFile = \"music\",\r\n", "[\"sDefaultQuestionFile\"] = \"music\",\r\n"}) {
        questionFiles =
            std::string("tTriviaQuestionFiles = {\r\n") + line + "\t\"zoo\",\r\n\t\"Animals\",\r\n}\r\n";
        const auto loaded = loadTriviaQuestionFiles(hub.files);
        EXPECT_EQ(loaded.defaultFile, "music");
        EXPECT_EQ(loaded.names, (std::vector<std::string>{"Animals", "music", "zoo"}));
    }
}

TEST_F(Trivia, AnEmptyDefaultLeavesTheListsEmpty)
{
    questionFiles = "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = \"\",\r\n\t\"zoo\",\r\n}\r\n";
    EXPECT_TRUE(loadTriviaQuestionFiles(hub.files).names.empty());
}

TEST_F(Trivia, TheDefaultIsNotRepeatedAmongTheRows)
{
    saveTriviaQuestionFiles(hub.files, {"music", {"Animals", "music", "zoo"}});
    EXPECT_TRUE(sameBytes(questionFiles, "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = \"music\",\r\n"
                                         "\t\"Animals\",\r\n\t\"zoo\",\r\n}\r\n"));
    EXPECT_EQ(test::luaValues(questionFiles),
              (test::LuaValues{{"tTriviaQuestionFiles.1", "Animals"},
                               {"tTriviaQuestionFiles.2", "zoo"},
                               {"tTriviaQuestionFiles.sDefaultQuestionFile", "music"}}));
}

TEST_F(Trivia, FilesWhoseNamesDifferInCaseAloneKeepTheirOrder)
{
    questionFiles =
        "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = \"b\",\r\n\t\"A\",\r\n\t\"a\",\r\n}\r\n";
    EXPECT_EQ(loadTriviaQuestionFiles(hub.files).names, (std::vector<std::string>{"A", "a", "b"}));
}

TEST_F(Trivia, QuestionsAreRowsOfTwoPieces)
{
    const std::vector<CellRow> rows = {{{"Misc:Who?", "me"}}, {{"Zoo:What=?", "a lion"}}};
    saveTriviaQuestions(hub.files, "zoo", rows);
    EXPECT_TRUE(sameBytes(hub.file("Games/Trivia/QuestionFiles/zoo.lst"),
                          "Misc:Who?*me\r\nZoo:What=?*a lion\r\n\r\n"));
    EXPECT_EQ(loadTriviaQuestions(hub.files, "zoo"), rows);
}

TEST_F(Trivia, AQuestionFileThatDiffersInCaseAloneIsReadAndTheToldOneWritten)
{
    hub.file("Games/Trivia/QuestionFiles/BIRDS.LST") = "Birds:Big?*ostrich\r\n";
    const std::vector<CellRow> rows = {{{"Birds:Big?", "ostrich"}}};
    EXPECT_EQ(loadTriviaQuestions(hub.files, "BIRDS"), rows);
    saveTriviaQuestions(hub.files, "BIRDS", rows);
    EXPECT_TRUE(hub.has("Games/Trivia/QuestionFiles/BIRDS.lst"));
}

TEST_F(Trivia, AQuestionIsEditedByItsThreePieces)
{
    const RowListDeclaration list = triviaQuestionLists().rows;
    CellRow row = {{"Zoo:Big cat?", "lion"}};
    EXPECT_EQ(list.fieldsOf(row), (std::vector<std::string>{"Zoo", "Big cat?", "lion"}));
    list.take({"Sea", "Big fish?", "whale"}, row);
    EXPECT_EQ(row.cells, (std::vector<std::string>{"Sea:Big fish?", "whale"}));
}

TEST_F(Trivia, FilesAreFoundByTheirNamesAndQuestionsBelowTheirFile)
{
    questionFiles = "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = \"zoo\",\r\n}\r\n";
    hub.file("Games/Trivia/QuestionFiles/zoo.lst") = "Zoo:Big cat?*lion\r\n";
    const std::string list = R"(Games\Trivia\TriviaQuestionFiles.tbl)";
    std::vector<PlacedText> found;
    for (const Node& node : triviaFunction().nodes) {
        for (const PartDeclaration& part : node.form ? node.form->parts : std::vector<PartDeclaration>()) {
            if (const auto* own = std::get_if<OwnPart>(&part))
                found = own->texts(hub.files, hub.profiles);
        }
    }
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].text, "zoo");
    EXPECT_EQ(found[1].file, list);
    EXPECT_EQ(found[1].text, "zoo");
    EXPECT_EQ(found[2].file, R"(Games\Trivia\QuestionFiles\zoo.lst)");
    EXPECT_EQ(found[2].text, "Zoo:Big cat? | lion");
}

TEST_F(Trivia, ANewQuestionFileHasOneRowAndNoLineEndOfItsOwn)
{
    createTriviaQuestions(hub.files, "new");
    const std::string& seed = hub.file("Games/Trivia/QuestionFiles/new.lst");
    EXPECT_TRUE(seed.starts_with("Literature:"));
    EXPECT_TRUE(seed.ends_with("*binkie\r\n"));
    EXPECT_NE(seed.find("Tavis Orlemon"), std::string::npos);
}

TEST_F(Trivia, AQuestionThatHoldsAColonLosesItsTailWhenItIsEdited)
{
    const CellRow row{{"Misc:A:B", "c"}};
    EXPECT_EQ(questionFields(row), (std::vector<std::string>{"Misc", "A", "c"}));
    EXPECT_EQ(questionRow(questionFields(row)), (CellRow{{"Misc:A", "c"}}));
    EXPECT_EQ(questionFields({{" Misc : A ", "c"}}), (std::vector<std::string>{"Misc", "A", "c"}));
    EXPECT_EQ(questionFields({{"no colon", "c"}}), (std::vector<std::string>{"no colon", "", "c"}));
}

TEST_F(Trivia, TheHubScriptSeesTheSettings)
{
    const auto values = test::luaValues(golden("games/TriviaSettings.save.tbl"));
    EXPECT_EQ(values.size(), 21U);
    EXPECT_EQ(values.at("tTriviaSettings.iFormat"), "2");
    EXPECT_EQ(values.at("tTriviaSettings.sHintChar"), "*");
}

struct PatternRow
{
    const char* key;
    const char* triviaCaption;
    const char* caption;
    const char* cells[6]; ///< "default (minimum-maximum)" by game; empty where the game lacks the key
};

const PatternRow pattern[] = {
    {"iArchiveScores",
     "Scores to archive",
     "ScoresTo Archive",
     {"5 (0-250)", "5 (0-1000)", "5 (0-1000)", "5 (0-1000)", "5 (0-1000)", "5 (0-1000)"}},
    {"iQuestions",
     "Questions",
     "Questions",
     {"15 (0-999)", "20 (0-999)", "10 (0-999)", "20 (0-999)", "20 (0-999)", "12 (0-999)"}},
    {"iQuestionsPause",
     "Pause Between Questions",
     "Pause Between Questions",
     {"10 (0-60)", "10 (0-1000)", "10 (0-1000)", "10 (0-1000)", "10 (0-1000)", "10 (0-60)"}},
    {"iTimeOut",
     "Timeout",
     "Timeout",
     {"5 (0-1000)", "3 (0-60)", "3 (0-60)", "3 (0-60)", "3 (0-60)", "3 (0-1000)"}},
    {"iBonusTime", "Bonus Time", "Bonus Time", {"45 (0-100)", "10 (0-1000)", "", "10 (0-1000)", "", ""}},
    {"iPoints", "Points", "Points", {"1 (0-100)", "1 (0-100)", "6 (0-100)", "1 (0-100)", "1 (0-100)", ""}},
    {"iScores",
     "End Of Game Scores",
     "End Of Game Scores",
     {"25 (0-200)", "25 (0-100)", "25 (0-100)", "25 (0-100)", "25 (0-100)", "25 (0-100)"}},
    {"iTopScores",
     "Top X Scores",
     "Top Scores",
     {"10 (0-100)", "10 (0-200)", "10 (0-200)", "10 (0-200)", "10 (0-200)", "10 (0-100)"}},
    {"iAutoStartDelay",
     "Auto Start Delay",
     "Auto Start Delay",
     {"93 (1-1440)", "73 (1-1440)", "67 (1-1440)", "73 (1-1440)", "73 (1-1440)", "111 (1-1440)"}},
};

TEST(QuizPattern, EachGameHasItsOwnDefaultsAndRanges)
{
    for (const PatternRow& row : pattern) {
        for (int game = 0; game < 6; ++game) {
            if (*row.cells[game] == '\0')
                continue;
            const setting::Field field = QuizPattern{static_cast<QuizGame>(game)}(row.key, "txtUpDown(3)");
            const auto& number = std::get<setting::Number>(field.kind);
            EXPECT_EQ(std::to_string(number.defaultValue) + " (" + std::to_string(number.minimum) + "-" +
                          std::to_string(number.maximum) + ")",
                      row.cells[game])
                << row.key << " game " << game;
            EXPECT_EQ(field.label, game == 0 ? row.triviaCaption : row.caption);
            EXPECT_TRUE(number.details.onlyArrows);
            EXPECT_EQ(field.control, "txtUpDown(3)");
        }
    }
}

TEST(QuizPattern, ItsFlagsStandInFrontAndAreTheSameInEveryGame)
{
    const std::vector<std::vector<std::string>> expected = {
        {"bManualStart", "Manual Start Only", "0"},     {"bOpOnlyStart", "Operator Start", "0"},
        {"bOpOnlyStop", "Operator Stop", "0"},          {"bPlayInMain", "Play Game In Main", "1"},
        {"bAutoClearScores", "Auto Clear Scores", "1"}, {"bArchiveScores", "Auto Archive Scores", "1"}};
    const auto settings = withQuizFlags("chkBox", {setting::number("iOwn", "txtUpDown", "Own", 1, 0, 9)});
    ASSERT_EQ(settings.size(), 7U);
    for (std::size_t at = 0; at < expected.size(); ++at) {
        const auto& field = std::get<setting::Field>(settings[at]);
        EXPECT_TRUE(std::holds_alternative<setting::Flag>(field.kind));
        EXPECT_EQ((std::vector<std::string>{field.key, field.label, defaultText(field.kind)}), expected[at]);
        EXPECT_EQ(field.control, "chkBox(" + std::to_string(at) + ")");
    }
    EXPECT_EQ(keyOf(settings[6]), "iOwn");
}

} // namespace
} // namespace quillfen
