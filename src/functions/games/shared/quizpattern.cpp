#include "functions/games/shared/quizpattern.h"

#include "functions/games/shared/playinmain.h"
#include "settings/listfile.h"
#include "settings/tablewriter.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace quillfen {
namespace {

constexpr int quizGameCount = 6;

struct QuizFlag
{
    const char* key;
    const char* caption;
    bool defaultValue;
    std::string_view explanation{};
};

constexpr QuizFlag quizFlags[] = {
    {"bManualStart", "Manual Start Only", false, "Starts the game only on command."},
    {"bOpOnlyStart", "Operator Start", false, "Lets only operators start the game."},
    {"bOpOnlyStop", "Operator Stop", false, "Lets only operators stop the game."},
    {"bPlayInMain", "Play Game In Main", true, playsInMainChat},
    {"bAutoClearScores", "Auto Clear Scores", true},
    {"bArchiveScores", "Auto Archive Scores", true},
};

/// A game's default and range; the game's writer does not write a key without one.
struct Range
{
    int defaultValue;
    int minimum;
    int maximum;
};

struct QuizNumber
{
    const char* key;
    const char* caption;
    /// Trivia, Numbers, Hangman, Anagrams, CodeBreaker, GuessTheNumber
    std::array<Range, quizGameCount> ranges;
    std::string_view explanation{};
};

constexpr QuizNumber quizNumbers[] = {
    {"iArchiveScores",
     "ScoresTo Archive",
     {{{5, 0, 250}, {5, 0, 1000}, {5, 0, 1000}, {5, 0, 1000}, {5, 0, 1000}, {5, 0, 1000}}},
     "Sets how many scores are archived."},
    {"iQuestions",
     "Questions",
     {{{15, 0, 999}, {20, 0, 999}, {10, 0, 999}, {20, 0, 999}, {20, 0, 999}, {12, 0, 999}}},
     "Sets how many questions a game has."},
    {"iQuestionsPause",
     "Pause Between Questions",
     {{{10, 0, 60}, {10, 0, 1000}, {10, 0, 1000}, {10, 0, 1000}, {10, 0, 1000}, {10, 0, 60}}}},
    {"iTimeOut", "Timeout", {{{5, 0, 1000}, {3, 0, 60}, {3, 0, 60}, {3, 0, 60}, {3, 0, 60}, {3, 0, 1000}}}},
    {"iBonusTime", "Bonus Time", {{{45, 0, 100}, {10, 0, 1000}, {}, {10, 0, 1000}, {}, {}}}},
    {"iPoints",
     "Points",
     {{{1, 0, 100}, {1, 0, 100}, {6, 0, 100}, {1, 0, 100}, {1, 0, 100}, {}}},
     "Sets how many points a question is worth."},
    {"iScores",
     "End Of Game Scores",
     {{{25, 0, 200}, {25, 0, 100}, {25, 0, 100}, {25, 0, 100}, {25, 0, 100}, {25, 0, 100}}},
     "Sets how many scores are shown at the end of a game."},
    {"iTopScores",
     "Top Scores",
     {{{10, 0, 100}, {10, 0, 200}, {10, 0, 200}, {10, 0, 200}, {10, 0, 200}, {10, 0, 100}}},
     "Sets how many top scores are shown."},
    {"iAutoStartDelay",
     "Auto Start Delay",
     {{{93, 1, 1440}, {73, 1, 1440}, {67, 1, 1440}, {73, 1, 1440}, {73, 1, 1440}, {111, 1, 1440}}}},
};

/// Trivia words two captions in its own way.
std::string captionOf(QuizGame game, const QuizNumber& quizNumber)
{
    const std::string key = quizNumber.key;
    if (game == QuizGame::Trivia && key == "iArchiveScores")
        return "Scores to archive";
    if (game == QuizGame::Trivia && key == "iTopScores")
        return "Top X Scores";
    return quizNumber.caption;
}

} // namespace

setting::Field QuizPattern::operator()(const std::string& key, const std::string& control) const
{
    const auto* const found = std::find_if(std::begin(quizNumbers), std::end(quizNumbers),
                                           [&key](const QuizNumber& each) { return each.key == key; });
    const Range& range = found->ranges.at(static_cast<std::size_t>(game));
    return arrowNumber(key, control, captionOf(game, *found), range.defaultValue, range.minimum,
                       range.maximum)
        .explained(found->explanation);
}

std::vector<Setting> withQuizFlags(const std::string& checkBoxes, std::vector<Setting> further)
{
    std::vector<Setting> settings;
    for (const QuizFlag& each : quizFlags) {
        const std::string control = checkBoxes + "(" + std::to_string(settings.size()) + ")";
        settings.emplace_back(
            setting::flag(each.key, control, each.caption, each.defaultValue).explained(each.explanation));
    }
    settings.insert(settings.end(), std::make_move_iterator(further.begin()),
                    std::make_move_iterator(further.end()));
    return settings;
}

setting::Field arrowNumber(const std::string& key, const std::string& control, const std::string& label,
                           int defaultValue, int minimum, int maximum)
{
    return setting::number(key, control, label, defaultValue, minimum, maximum, {.onlyArrows = true});
}

setting::Field oneCharacter(const std::string& key, const std::string& label, const std::string& defaultValue)
{
    return setting::text(key, "txtTextBox(0)", label, defaultValue, 1);
}

FunctionDeclaration quizFunction(const std::string& folder, const std::string& game,
                                 std::function<TableFile()> settings)
{
    const std::string path = "Games\\" + folder;
    const std::string file = path + "\\" + game;
    return {
        .folders = {path, path + "\\ScoresArchive"},
        .build = {RebuiltSettings{std::move(settings)},
                  EmptyTable{file + "Players.tbl", "t" + game + "Players"},
                  EmptyTable{file + "ScoresArchiveIndex.tbl", "t" + game + "ScoresArchiveIndex"},
                  FirstText{file + "Scores.tbl", TableWriter("t" + game + "Scores").line("n=0").closed()}}};
}

} // namespace quillfen
