#include "functions/general/switches.h"

#include "declarations/oddfiles.h"
#include "settings/lines.h"

#include <algorithm>
#include <array>

namespace quillfen {
namespace {

constexpr std::array functions = {
    SwitchedFunction{"Anagrams", true, "Word game: users unscramble the letters of a hidden word"},
    SwitchedFunction{"AntiAdvertise", true, "Acts on users who advertise other hubs in chat"},
    SwitchedFunction{"AntiVirus", true, "Acts on users whose client shows the marks of a known virus"},
    SwitchedFunction{"Ascii", true, "Shows pictures made of characters when a user asks for one"},
    SwitchedFunction{"Attacks", true, "Lets users attack each other in chat, in words only"},
    SwitchedFunction{"AutoCorrect", true, "Replaces words in chat by others from a list"},
    SwitchedFunction{"BadNickBlocker", true, "Keeps users with an unwanted nick out of the hub"},
    SwitchedFunction{"Calculator", true, "Works out sums that users type in chat"},
    SwitchedFunction{"ChatRooms", true, "Allows users to create and use chat rooms"},
    SwitchedFunction{"ClientChecker", true, "Checks each user's client, its version and its connection"},
    SwitchedFunction{"Clock", true, "Displays the time in chat on a timer"},
    SwitchedFunction{"CloneBlocker", true, "Acts on users who log in twice from one address"},
    SwitchedFunction{"CodeBreaker", true, "Logic game: users work out a hidden code"},
    SwitchedFunction{"CommandSpy", true, "Shows operators which commands users give"},
    SwitchedFunction{"CustomRightClick", true, "Adds right click entries of your own"},
    SwitchedFunction{"DescriptionTags", true, "Puts a tag for each profile in front of users' descriptions"},
    SwitchedFunction{"DoAction", true, "Lets users act out little scenes in chat"},
    SwitchedFunction{"Flood", true, "Acts on users who flood the hub with messages"},
    SwitchedFunction{"GuessTheNumber", true, "Number game: users close in on a hidden number"},
    SwitchedFunction{"Hangman", true,
                     "Word game: users guess a word letter by letter before the gallows stand"},
    SwitchedFunction{"HideShare", true, "Hides the share of chosen profiles from other users"},
    SwitchedFunction{"Insults", true, "Lets users throw made-up insults at each other"},
    SwitchedFunction{"IntroOutro", true, "Announces users when they enter and leave the hub"},
    SwitchedFunction{"Jokes", true, "Tells a joke when a user asks for one"},
    SwitchedFunction{"KickBarChanger", true, "Displays message in Kick Bar on a timer"},
    SwitchedFunction{"Kicks", true, "Warns, kicks and bans users, and counts one up to the next"},
    SwitchedFunction{"Limericks", true, "Recites a limerick when a user asks for one"},
    SwitchedFunction{"MainBlock", true, "Allows users to be blocked from main chat for a time"},
    SwitchedFunction{"MainCleaner", true, "Allows main chat to be wiped clean"},
    SwitchedFunction{"MainLock", true, "Allows main chat to be locked for chosen profiles"},
    SwitchedFunction{"MassMessage", true, "Allows a message to be sent to many users at once"},
    SwitchedFunction{"MOTD", true, "Shows users a message of the day when they log in"},
    SwitchedFunction{"Mute", true, "Allows users to be muted"},
    SwitchedFunction{"Numbers", true, "Quiz game: users name the number behind each question"},
    SwitchedFunction{"PrivateHub", true, "Keeps chosen profiles out of the hub, its chat or its searches"},
    SwitchedFunction{"ProfileRules", true, "Holds each profile to its own share, slot and hub limits"},
    SwitchedFunction{"Proverbs", true, "Quotes a proverb when a user asks for one"},
    SwitchedFunction{"PtokaXSettings", true, "Allows the hub's own settings to be changed from chat"},
    SwitchedFunction{"Quotations", true, "Quotes a famous saying when a user asks for one"},
    SwitchedFunction{"Registration", true, "Allows users to be registered, and to register themselves"},
    SwitchedFunction{"Report", true, "Allows users to report others to the operators"},
    SwitchedFunction{"RotatingMainMessage", true, "Displays messages in main chat in turn, on a timer"},
    SwitchedFunction{"RotatingPrivateMessage", false, "Sends private messages to users in turn, on a timer"},
    SwitchedFunction{"Rules", true, "Shows users the rules of the hub"},
    SwitchedFunction{"RussianRoulette", true, "Game of chance: users pull the trigger, and one loses"},
    SwitchedFunction{"SearchSpy", true, "Shows operators what users search for"},
    SwitchedFunction{"SlotMachine", true, "Game of chance: users pull the lever of a slot machine"},
    SwitchedFunction{"Spells", true, "Lets users cast spells on each other in chat"},
    SwitchedFunction{"NickSpells", true, "Lets users cast spells that play with a nick"},
    SwitchedFunction{"Talk", true, "Allows chosen profiles to talk under another nick"},
    SwitchedFunction{"ThreeCardMonty", true, "Game of chance: users find the queen among three cards"},
    SwitchedFunction{"TopicChanger", false, "Changes hub topic on a timer"},
    SwitchedFunction{"Trivia", true, "Quiz game: users answer questions from your question files"},
    SwitchedFunction{"UserLog", true, "Keeps a log of who enters the hub, and when"},
    SwitchedFunction{"WelcomeInfo", true, "Shows users the facts of the hub when they log in"},
    SwitchedFunction{"Whisper", true, "Allows users to whisper to each other in main chat"},
};

/// A rebuild resets every switch without a look at the old file, and the owner's ticks are lost.
void writeBuiltRows(const SettingsFiles& files, const ListFile& file)
{
    std::vector<ListRow> rows;
    rows.reserve(functions.size());
    for (const SwitchedFunction& function : functions)
        rows.push_back({std::string(function.name), {}, function.on});
    saveList(files, file, rows);
}

void resetSwitches(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    writeBuiltRows(files, switchesFile());
}

void resetEnabledRightClicks(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    writeBuiltRows(files, enabledRightClicksFile());
}

/// The script's functions with a tick each. A click on one shows its help.
FormDeclaration switchesForm(const FormDescription& form, const ListFile& (*file)(),
                             std::string_view explanation)
{
    return {form, {DeclaredTicks{[file, explanation] {
                return TickList{.control = "lvwSwitches",
                                .caption = "Functions",
                                .file = file(),
                                .help = switchHelp,
                                .explanation = explanation};
            }}}};
}

} // namespace

std::span<const SwitchedFunction> switchedFunctions()
{
    return functions;
}

std::string_view switchHelp(std::string_view name)
{
    const auto* const function =
        std::find_if(functions.begin(), functions.end(),
                     [name](const SwitchedFunction& each) { return each.name == name; });
    return function == functions.end() ? std::string_view() : function->help;
}

std::string_view switchOf(std::string_view nodeKey)
{
    const auto group = splitOnce(nodeKey, '~');
    std::string_view word = splitOnce(group.right, '~').left;
    if (word == "Flooder") // the tree and the hub script call it by two names
        word = "Flood";
    const auto* const function =
        std::find_if(functions.begin(), functions.end(),
                     [word](const SwitchedFunction& each) { return each.name == word; });
    return function == functions.end() ? std::string_view() : function->name;
}

const ListFile& switchesFile()
{
    static const ListFile file = {switchesPath, "tSwitches", ListFile::Form::Flags};
    return file;
}

const ListFile& enabledRightClicksFile()
{
    static const ListFile file = {R"(General\Globals\EnabledRightClicks.tbl)", "tEnabledRightClicks",
                                  ListFile::Form::Flags};
    return file;
}

FunctionDeclaration switchesFunction()
{
    return {.nodes = {{"General~Switches", "Switches",
                       switchesForm({"frmGeneralSwitches", "General ~ Switches", {3165, 3450}}, switchesFile,
                                    "Turns the ticked functions of the hub script on and the others off.")},
                      {"General~EnabledRightClicks", "Enabled Right Clicks",
                       switchesForm({"frmGeneralRightClicks", "General ~ Right Clicks", {3165, 3450}},
                                    enabledRightClicksFile,
                                    "Gives users the right click entries of the ticked functions.")}},
            .build = {resetSwitches, resetEnabledRightClicks}};
}

} // namespace quillfen
