#include "functions/catalogue.h"

#include <gtest/gtest.h>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace quillfen {
namespace {

/// What an owner meets of a number: its default, and what its arrows keep to.
struct NumberRange
{
    int defaultValue;
    int minimum;
    int maximum;
    int step = 1;
    std::string unit{};

    bool operator==(const NumberRange&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const NumberRange& range)
{
    return stream << range.defaultValue << " of " << range.minimum << " to " << range.maximum << " by "
                  << range.step << ' ' << range.unit;
}

using RangesOfFile = std::map<std::string, NumberRange>;

void addRanges(const TableFile& file, std::map<std::string, RangesOfFile>& ranges)
{
    for (const Setting& each : file.settings) {
        const auto* idle = std::get_if<setting::Idle>(&each);
        const auto* field = idle ? &idle->field : std::get_if<setting::Field>(&each);
        const auto* number = field ? std::get_if<setting::Number>(&field->kind) : nullptr;
        if (number)
            ranges[file.path][field->key] = {number->defaultValue, number->minimum, number->maximum,
                                             number->details.step, number->details.unit};
    }
}

std::map<std::string, RangesOfFile> declaredRanges()
{
    std::map<std::string, RangesOfFile> ranges;
    for (const FormDeclaration& form : formCatalogue()) {
        for (const PartDeclaration& part : form.parts) {
            for (const TableFile& file : settingsFilesOf(part))
                addRanges(file, ranges);
        }
    }
    return ranges;
}

std::map<std::string, RangesOfFile> rangesOfGames()
{
    std::map<std::string, RangesOfFile> ranges = {
        {R"(Games\Trivia\TriviaSettings.tbl)", {{"iHintTime", {30, 0, 60}}, {"iMaxHints", {5, 0, 10}}}},
        {R"(Games\Numbers\NumbersSettings.tbl)", {{"iQuestionTime", {20, 0, 60}}}},
        {R"(Games\Hangman\HangmanSettings.tbl)", {{"iLostLifeTime", {30, 0, 60}}}},
        {R"(Games\Anagrams\AnagramSettings.tbl)", {{"iHintTime", {20, 0, 60}}}},
        {R"(Games\CodeBreaker\CodeBreakerSettings.tbl)",
         {{"iQuestionLength", {3, 0, 60}}, {"iQuestionsTime", {90, 0, 1000}}}},
        {R"(Games\GuessTheNumber\GuessTheNumberSettings.tbl)",
         {{"iHints", {5, 0, 60}},
          {"iHintTime", {20, 0, 10}}, // both defaults lie above what the arrows reach
          {"iMaxHints", {20, 0, 10}},
          {"iQuestionMin", {1, 0, 100}},
          {"iQuestionMax", {500, 100, 5000}}}},
        {R"(Games\ThreeCardMonty\ThreeCardMontySettings.tbl)",
         {{"iWager", {1, 1, 50}}, {"iMarker", {25, 10, 500}}}},
        {R"(Games\SlotMachine\SlotMachineSettings.tbl)",
         {{"iCredit", {50, 50, 5000, 5}},
          {"iCreditPlay", {2, 1, 100}},
          {"iCreditLoan", {1000, 50, 50000, 5}}}},
    };
    // What the six quizzes share, with the ranges that each has for itself.
    const auto share = [&ranges](const char* key, std::vector<std::pair<const char*, NumberRange>> games) {
        for (auto& [file, range] : games)
            ranges.at(std::string("Games\\") + file + "Settings.tbl")[key] = std::move(range);
    };
    const char* trivia = "Trivia\\Trivia";
    const char* numbers = "Numbers\\Numbers";
    const char* hangman = "Hangman\\Hangman";
    const char* anagrams = "Anagrams\\Anagram";
    const char* code = "CodeBreaker\\CodeBreaker";
    const char* guess = "GuessTheNumber\\GuessTheNumber";
    share("iArchiveScores", {{trivia, {5, 0, 250}},
                             {numbers, {5, 0, 1000}},
                             {hangman, {5, 0, 1000}},
                             {anagrams, {5, 0, 1000}},
                             {code, {5, 0, 1000}},
                             {guess, {5, 0, 1000}}});
    share("iQuestions", {{trivia, {15, 0, 999}},
                         {numbers, {20, 0, 999}},
                         {hangman, {10, 0, 999}},
                         {anagrams, {20, 0, 999}},
                         {code, {20, 0, 999}},
                         {guess, {12, 0, 999}}});
    share("iQuestionsPause", {{trivia, {10, 0, 60}},
                              {numbers, {10, 0, 1000}},
                              {hangman, {10, 0, 1000}},
                              {anagrams, {10, 0, 1000}},
                              {code, {10, 0, 1000}},
                              {guess, {10, 0, 60}}});
    share("iTimeOut", {{trivia, {5, 0, 1000}},
                       {numbers, {3, 0, 60}},
                       {hangman, {3, 0, 60}},
                       {anagrams, {3, 0, 60}},
                       {code, {3, 0, 60}},
                       {guess, {3, 0, 1000}}});
    share("iBonusTime", {{trivia, {45, 0, 100}},
                         {numbers, {10, 0, 1000}},
                         {hangman, {10, 0, 1000}},
                         {anagrams, {10, 0, 1000}}});
    share("iPoints", {{trivia, {1, 0, 100}},
                      {numbers, {1, 0, 100}},
                      {hangman, {6, 0, 100}},
                      {anagrams, {1, 0, 100}},
                      {code, {1, 0, 100}}});
    share("iScores", {{trivia, {25, 0, 200}},
                      {numbers, {25, 0, 100}},
                      {hangman, {25, 0, 100}},
                      {anagrams, {25, 0, 100}},
                      {code, {25, 0, 100}},
                      {guess, {25, 0, 100}}});
    share("iTopScores", {{trivia, {10, 0, 100}},
                         {numbers, {10, 0, 200}},
                         {hangman, {10, 0, 200}},
                         {anagrams, {10, 0, 200}},
                         {code, {10, 0, 200}},
                         {guess, {10, 0, 100}}});
    share("iAutoStartDelay", {{trivia, {93, 1, 1440}},
                              {numbers, {73, 1, 1440}},
                              {hangman, {67, 1, 1440}},
                              {anagrams, {73, 1, 1440}},
                              {code, {73, 1, 1440}},
                              {guess, {111, 1, 1440}}});
    return ranges;
}

std::map<std::string, RangesOfFile> rangesOfCommunication()
{
    return {
        {R"(Communication\RotatingMainMessage\RotatingMainMessageSettings.tbl)",
         {{"iDelay", {120, 10, 720}}}},
        {R"(Communication\RotatingPrivateMessage\RotatingPrivateMessageSettings.tbl)",
         {{"iDelay", {120, 10, 720}}}},
        {R"(Communication\Clock\ClockSettings.tbl)", {{"iDelay", {60, 0, 250}}}},
        {R"(Communication\KickBarChanger\KickBarChangerSettings.tbl)", {{"iDelay", {10, 1, 720}}}},
        {R"(Communication\TopicChanger\TopicChangerSettings.tbl)", {{"iDelay", {10, 1, 720}}}},
        {R"(Communication\HubEmail\HubEmailSettings.tbl)", {{"iInboxSize", {10, 0, 250}}}},
    };
}

std::map<std::string, RangesOfFile> rangesOfSecurity()
{
    return {
        {R"(Security\Kick\KickSettings.tbl)",
         {{"iWarnsMakeKick", {5, 1, 50}},
          {"iKicksMakeBan", {5, 1, 50}},
          {"iTimeBansMakeBan", {5, 1, 50}},
          {"iKickBanTime", {10, 1, 500}},
          {"iCleanOlderThan", {30, 1, 180}},
          {"iCleanerTime", {2355, 5, 2359}},
          {"iTopKickers", {10, 1, 100}}}},
        {R"(Security\ProfileRules\ProfileRuleSettings.tbl)", {{"iCheckDelay", {5, 1, 365, 1, "Days"}}}},
        {R"(Security\AntiAdvertise\AntiAdvertiseSettings.tbl)", {{"iTempBanTime", {60, 5, 1440}}}},
        {R"(Security\AntiVirus\AntiVirusSettings.tbl)", {{"iTempBanTime", {60, 5, 1440}}}},
        {R"(Security\BadNickBlocker\BadNickBlockerSettings.tbl)", {{"iTempBanTime", {60, 5, 1440}}}},
        {R"(Security\CloneBlocker\CloneBlockerSettings.tbl)", {{"iTempBanTime", {60, 5, 1440}}}},
        {R"(Security\ClientChecker\ClientCheckerSettings.tbl)", {{"iBanTime", {60, 5, 1440}}}},
        {R"(Security\PrivateHub\PrivateHubSettings.tbl)", {{"iPreventPMTime", {5, 1, 720}}}},
        {R"(Security\MainBlock\MainBlockSettings.tbl)", {{"iBlockTime", {10, 5, 1440}}}},
        {R"(Security\UserLog\UserLogSettings.tbl)",
         {{"iCleanOlderThan", {28, 1, 365, 1, "Days"}},
          {"iCleanerTime", {2355, 5, 2355}},
          {"iSaveTimerInterval", {60, 1, 86400}},
          {"iTopHubbers", {25, 1, 150}}}},
    };
}

std::map<std::string, RangesOfFile> rangesOfTheOthers()
{
    std::map<std::string, RangesOfFile> ranges = {
        {R"(UserActions\Jokes\JokeSettings.tbl)", {{"iDelay", {103, 10, 720}}}},
        {R"(UserActions\Limericks\LimerickSettings.tbl)", {{"iDelay", {93, 10, 720}}}},
        {R"(UserActions\Proverbs\ProverbSettings.tbl)", {{"iDelay", {73, 10, 720}}}},
        {R"(UserActions\Quotations\QuotationSettings.tbl)", {{"iDelay", {89, 10, 720}}}},
        {R"(UserActions\Spells\SpellSettings.tbl)", {{"iDelay", {3, 1, 180}}}},
        {R"(UserActions\NickSpells\NickSpellSettings.tbl)", {{"iDelay", {3, 1, 180}}}},
    };
    for (const std::string collection :
         {"Arcade", "Bookshelf", "DVDRack", "Hyperlink", "Jukebox", "Songbook"})
        ranges["TheArchive\\" + collection + '\\' + collection + "NewItems.tbl"] = {
            {"iNumberOfNewItems", {5, 1, 50}}};
    return ranges;
}

TEST(NumberRanges, OfAllFormsAreAsTold)
{
    std::map<std::string, RangesOfFile> told = rangesOfGames();
    told.merge(rangesOfCommunication());
    told.merge(rangesOfSecurity());
    told.merge(rangesOfTheOthers());
    EXPECT_EQ(declaredRanges(), told);
}

} // namespace
} // namespace quillfen
