#include "functions/catalogue.h"

#include "functions/archive/archive.h"
#include "functions/communication/autocorrect.h"
#include "functions/communication/changers.h"
#include "functions/communication/chatpermissions.h"
#include "functions/communication/chatrooms.h"
#include "functions/communication/clock.h"
#include "functions/communication/hubemail.h"
#include "functions/communication/massmessage.h"
#include "functions/communication/motd.h"
#include "functions/communication/rotatingmessages.h"
#include "functions/communication/welcomeinfo.h"
#include "functions/communication/whisper.h"
#include "functions/customise/asciiintros.h"
#include "functions/customise/customrightclick.h"
#include "functions/customise/descriptiontags.h"
#include "functions/customise/hideshare.h"
#include "functions/customise/introsoutros.h"
#include "functions/games/anagrams.h"
#include "functions/games/codebreaker.h"
#include "functions/games/guessthenumber.h"
#include "functions/games/hangman.h"
#include "functions/games/numbers.h"
#include "functions/games/russianroulette.h"
#include "functions/games/scoreclearers.h"
#include "functions/games/slotmachine.h"
#include "functions/games/threecardmonty.h"
#include "functions/games/trivia.h"
#include "functions/general/bots.h"
#include "functions/general/languages.h"
#include "functions/general/settings.h"
#include "functions/general/switches.h"
#include "functions/security/antiadvertise.h"
#include "functions/security/blockers.h"
#include "functions/security/clientchecker.h"
#include "functions/security/flood.h"
#include "functions/security/kicks.h"
#include "functions/security/mainchat.h"
#include "functions/security/privatehub.h"
#include "functions/security/profilerules.h"
#include "functions/security/ptokax.h"
#include "functions/security/registration.h"
#include "functions/security/report.h"
#include "functions/security/rules.h"
#include "functions/security/spies.h"
#include "functions/security/userlog.h"
#include "functions/useractions/actiontexts.h"
#include "functions/useractions/ascii.h"
#include "functions/useractions/calculator.h"
#include "functions/useractions/collections.h"
#include "functions/useractions/spells.h"
#include "news/news.h"
#include "portal/portalsettings.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <string>
#include <utility>

namespace quillfen {
namespace {

using Declared = FunctionDeclaration (*)();

void addNodes(std::vector<Node>& all, FunctionDeclaration function)
{
    std::move(function.nodes.begin(), function.nodes.end(), std::back_inserter(all));
}

std::vector<Node> allNodes()
{
    std::vector<Node> all;
    const auto addGroup = [&all](const char* key, const char* caption,
                                 std::initializer_list<Declared> group) {
        all.push_back({key, caption});
        for (const Declared declared : group)
            addNodes(all, declared());
    };
    addGroup("General", "General",
             {generalSettingsFunction, botsFunction, languagesFunction, newsFunction, switchesFunction});
    addGroup("Communication", "Communication",
             {autoCorrectFunction, chatRoomsFunction, clockFunction, hubEmailFunction, kickBarChangerFunction,
              massMessageFunction, motdFunction, muteFunction, portalFunction, rotatingMainMessagesFunction,
              rotatingPrivateMessagesFunction, talkFunction, topicChangerFunction, welcomeInfoFunction,
              whisperFunction});
    addGroup("CustomiseUser", "Customise User",
             {customRightClickFunction, descriptionTagsFunction, hideShareFunction, introsOutrosFunction,
              asciiIntrosFunction});
    addGroup("Games", "Games",
             {anagramsFunction, codeBreakerFunction, guessTheNumberFunction, hangmanFunction, numbersFunction,
              russianRouletteFunction, scoreClearersFunction, slotMachineFunction, threeCardMontyFunction,
              triviaFunction});
    addGroup("Security", "Security",
             {antiAdvertiseFunction, antiVirusFunction, badNickBlockerFunction, clientCheckerFunction,
              cloneBlockerFunction, commandSpyFunction, floodFunction, kicksFunction, mainBlockFunction,
              mainCleanerFunction, mainLockFunction, ptokaXSettingsFunction, privateHubFunction,
              profileRulesFunction, registrationFunction, reportFunction, rulesFunction, searchSpyFunction,
              userLogFunction});
    addGroup("UserActions", "User Actions",
             {asciiFunction, attacksFunction, calculatorFunction, doActionsFunction, insultsFunction,
              jokesFunction, limericksFunction, proverbsFunction, quotationsFunction, spellsFunction,
              nickSpellsFunction});
    for (std::size_t member = 0; member < archiveMembers().size(); ++member)
        addNodes(all, archiveFunction(member));
    return all;
}

FolderCatalogue allFolders()
{
    FolderCatalogue all;
    const auto addGroup = [&all](const char* folder, std::initializer_list<Declared> group) {
        all.push_back({.folders = {folder}});
        for (const Declared declared : group)
            all.push_back(declared());
    };
    addGroup("CustomiseUser", {customRightClickFunction, descriptionTagsFunction, hideShareFunction,
                               introsOutrosFunction, asciiIntrosFunction});
    addGroup("Communication", {autoCorrectFunction, chatRoomsFunction, clockFunction, kickBarChangerFunction,
                               massMessageFunction, motdFunction, muteFunction, rotatingMainMessagesFunction,
                               rotatingPrivateMessagesFunction, talkFunction, topicChangerFunction,
                               welcomeInfoFunction, whisperFunction});
    addGroup("Games", {anagramsFunction, codeBreakerFunction, scoreClearersFunction, guessTheNumberFunction,
                       hangmanFunction, numbersFunction, russianRouletteFunction, slotMachineFunction,
                       threeCardMontyFunction, triviaFunction});
    addGroup("General", {botsFunction, generalSettingsFunction, switchesFunction});
    all.push_back({.folders = {R"(General\PtokaX)"}}); // holds the saved copy of the hub's profile file
    all.push_back(languagesFunction());
    addGroup("Security",
             {antiAdvertiseFunction, antiVirusFunction, badNickBlockerFunction, clientCheckerFunction,
              cloneBlockerFunction, commandSpyFunction, floodFunction, kicksFunction, mainBlockFunction,
              mainCleanerFunction, mainLockFunction, privateHubFunction, profileRulesFunction,
              ptokaXSettingsFunction, registrationFunction, reportFunction, rulesFunction, searchSpyFunction,
              userLogFunction});
    addGroup("UserActions", {asciiFunction, attacksFunction, calculatorFunction, doActionsFunction,
                             insultsFunction, jokesFunction, limericksFunction, proverbsFunction,
                             quotationsFunction, spellsFunction, nickSpellsFunction});
    addGroup("TheArchive", {archiveFolders});
    return all;
}

} // namespace

const std::vector<Node>& functionNodes()
{
    static const std::vector<Node> all = allNodes();
    return all;
}

FormCatalogue formCatalogue()
{
    FormCatalogue forms;
    for (const Node& node : functionNodes()) {
        if (node.form)
            forms.push_back(*node.form);
    }
    return forms;
}

const FolderCatalogue& folderCatalogue()
{
    static const FolderCatalogue all = allFolders();
    return all;
}

} // namespace quillfen
