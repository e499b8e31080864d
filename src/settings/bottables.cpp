#include "settings/bottables.h"

namespace quillfen {
namespace {

struct BotGroup
{
    std::string_view word;
    std::span<const std::string_view> functions;
};

constexpr std::string_view mainFunctions[] = {"Main"};
constexpr std::string_view communication[] = {"ChatRooms", "MassMessage",         "MOTD",
                                              "Mute",      "RotatingMainMessage", "RotatingPrivateMessage",
                                              "Talk",      "WelcomeInfo",         "Whisper"};
constexpr std::string_view customiseUser[] = {"DescriptionTags", "IntroOutro"};
constexpr std::string_view gameFunctions[] = {"Anagrams",    "CodeBreaker",    "GuessTheNumber",
                                              "Hangman",     "Numbers",        "RussianRoulette",
                                              "SlotMachine", "ThreeCardMonty", "Trivia"};
// The groups are as the hub script has them, odd cases included: HideShare under Security, and AutoCorrect,
// Clock and ProfileRules under UserAction.
constexpr std::string_view security[] = {
    "AntiAdvertise", "AntiVirus",      "BadNickBlocker", "ClientChecker", "CloneBlocker", "CommandSpy",
    "Flood",         "HideShare",      "Kicks",          "MainBlock",     "MainCleaner",  "MainLock",
    "PrivateHub",    "PtokaXSettings", "Registration",   "Rules",         "SearchSpy",    "UserLog"};
constexpr std::string_view userAction[] = {"Ascii",        "Attacks",  "AutoCorrect", "Clock",
                                           "DoAction",     "Insults",  "Jokes",       "Limericks",
                                           "ProfileRules", "Proverbs", "Quotations",  "Spells"};
constexpr std::string_view theArchive[] = {"Bookshelf", "DVDRack", "Jukebox",
                                           "Songbook",  "Arcade",  "Hyperlink"};

constexpr BotGroup botGroups[] = {
    {"Main", mainFunctions},    {"Communication", communication}, {"CustomiseUser", customiseUser},
    {"Games", gameFunctions},   {"Security", security},           {"UserAction", userAction},
    {"TheArchive", theArchive},
};

} // namespace

std::span<const std::string_view> botFunctions(std::string_view group)
{
    for (const BotGroup& each : botGroups) {
        if (each.word == group)
            return each.functions;
    }
    return {};
}

std::vector<std::string_view> botFunctions()
{
    std::vector<std::string_view> all;
    for (const BotGroup& each : botGroups)
        all.insert(all.end(), each.functions.begin(), each.functions.end());
    return all;
}

std::string botTable(std::string_view function)
{
    return 't' + std::string(function);
}

} // namespace quillfen
