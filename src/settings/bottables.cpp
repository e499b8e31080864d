#include "settings/bottables.h"

namespace quillfen {

const std::vector<std::string_view>& botFunctions()
{
    static const std::vector<std::string_view> functions = {
        "Main",
        "ChatRooms",
        "MassMessage",
        "MOTD",
        "Mute",
        "RotatingMainMessage",
        "RotatingPrivateMessage",
        "Talk",
        "WelcomeInfo",
        "Whisper",
        "DescriptionTags",
        "IntroOutro",
        "Anagrams",
        "CodeBreaker",
        "GuessTheNumber",
        "Hangman",
        "Numbers",
        "RussianRoulette",
        "SlotMachine",
        "ThreeCardMonty",
        "Trivia",
        "AntiAdvertise",
        "AntiVirus",
        "BadNickBlocker",
        "ClientChecker",
        "CloneBlocker",
        "CommandSpy",
        "Flood",
        "HideShare",
        "Kicks",
        "MainBlock",
        "MainCleaner",
        "MainLock",
        "PrivateHub",
        "PtokaXSettings",
        "Registration",
        "Rules",
        "SearchSpy",
        "UserLog",
        "Ascii",
        "Attacks",
        "AutoCorrect",
        "Clock",
        "DoAction",
        "Insults",
        "Jokes",
        "Limericks",
        "ProfileRules",
        "Proverbs",
        "Quotations",
        "Spells",
        "Bookshelf",
        "DVDRack",
        "Jukebox",
        "Songbook",
        "Arcade",
        "Hyperlink",
    };
    return functions;
}

std::string botTable(std::string_view function)
{
    return 't' + std::string(function);
}

} // namespace quillfen
