#include "functions/catalogue.h"

#include "functions/communication/changers.h"
#include "functions/games/trivia.h"
#include "functions/general/bots.h"
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

namespace quillfen {

const FolderCatalogue& folderCatalogue()
{
    static const FolderCatalogue catalogue = {
        {{"CustomiseUser"}},
        {{R"(CustomiseUser\CustomRightClick)"}},
        {{R"(CustomiseUser\DescriptionTags)"}},
        {{R"(CustomiseUser\HideShare)"}},
        {{R"(CustomiseUser\IntroOutro)", R"(CustomiseUser\IntroOutro\Ascii)"}},

        {{"Communication"}},
        {{R"(Communication\AutoCorrect)"}},
        {{R"(Communication\ChatRooms)"}},
        {{R"(Communication\Clock)"}},
        {{R"(Communication\KickBarChanger)"}, {buildKickBarChanger}},
        {{R"(Communication\MassMessage)"}},
        {{R"(Communication\MOTD)", R"(Communication\MOTD\MOTDs)"}},
        {{R"(Communication\Mute)"}},
        {{R"(Communication\RotatingMainMessage)", R"(Communication\RotatingMainMessage\Files)"}},
        {{R"(Communication\RotatingPrivateMessage)", R"(Communication\RotatingPrivateMessage\Files)"}},
        {{R"(Communication\Talk)"}},
        {{R"(Communication\TopicChanger)"}, {buildTopicChanger}},
        {{R"(Communication\WelcomeInfo)"}},
        {{R"(Communication\Whisper)"}},

        {{"Games"}},
        {{R"(Games\Anagrams)", R"(Games\Anagrams\ScoresArchive)"}},
        {{R"(Games\CodeBreaker)", R"(Games\CodeBreaker\ScoresArchive)"}},
        {{R"(Games\Globals)"}},
        {{R"(Games\GuessTheNumber)", R"(Games\GuessTheNumber\ScoresArchive)"}},
        {{R"(Games\Hangman)", R"(Games\Hangman\ScoresArchive)", R"(Games\Hangman\Ascii)"}},
        {{R"(Games\Numbers)", R"(Games\Numbers\ScoresArchive)"}},
        {{R"(Games\RussianRoulette)"}},
        {{R"(Games\SlotMachine)"}},
        {{R"(Games\ThreeCardMonty)"}},
        {{R"(Games\Trivia)", R"(Games\Trivia\ScoresArchive)", R"(Games\Trivia\QuestionFiles)"},
         {buildTrivia}},

        {{"General"}},
        {{R"(General\Bots)"}, {buildBots}},
        {{R"(General\Globals)"}, {buildGeneralSettings, buildSwitches, buildEnabledRightClicks}},
        {{R"(General\PtokaX)"}}, // holds the saved copy of the hub's profile file

        {{"Language", R"(Language\Commands)", R"(Language\Commands\Files)", R"(Language\Messages)",
          R"(Language\Messages\Files)", R"(Language\RightClick)", R"(Language\RightClick\Files)"}},

        {{"Security"}},
        {{R"(Security\AntiAdvertise)"}, {buildAntiAdvertise}},
        {{R"(Security\AntiVirus)"}, {buildAntiVirus}},
        {{R"(Security\BadNickBlocker)"}, {buildBadNickBlocker}},
        {{R"(Security\ClientChecker)"}, {buildClientChecker}},
        {{R"(Security\CloneBlocker)"}, {buildCloneBlocker}},
        {{R"(Security\CommandSpy)"}, {buildCommandSpy}},
        {{R"(Security\Flood)"}, {buildFlood}},
        {{R"(Security\Kick)", R"(Security\Kick\Logs)"}, {buildKicks}},
        {{R"(Security\MainBlock)"}, {buildMainBlock}},
        {{R"(Security\MainCleaner)"}, {buildMainCleaner}},
        {{R"(Security\MainLock)"}, {buildMainLock}},
        {{R"(Security\PrivateHub)"}, {buildPrivateHub}},
        {{R"(Security\ProfileRules)", R"(Security\ProfileRules\Logs)"}, {buildProfileRules}},
        {{R"(Security\PtokaX)"}, {buildPtokaXSettings}},
        {{R"(Security\Registration)", R"(Security\Registration\Logs)"}, {buildRegistration}},
        {{R"(Security\Report)"}, {buildReport}},
        {{R"(Security\Rules)", R"(Security\Rules\Ascii)"}, {buildRules}},
        {{R"(Security\SearchSpy)"}, {buildSearchSpy}},
        {{R"(Security\UserLog)", R"(Security\UserLog\Logs)"}, {buildUserLog}},

        {{"UserActions"}},
        {{R"(UserActions\Ascii)", R"(UserActions\Ascii\Ascii)"}},
        {{R"(UserActions\Attacks)"}},
        {{R"(UserActions\Calculator)"}},
        {{R"(UserActions\DoAction)"}},
        {{R"(UserActions\Insults)"}},
        {{R"(UserActions\Jokes)"}},
        {{R"(UserActions\Limericks)"}},
        {{R"(UserActions\Proverbs)"}},
        {{R"(UserActions\Quotations)"}},
        {{R"(UserActions\Spells)", R"(UserActions\Spells\Spells)"}},
        {{R"(UserActions\NickSpells)", R"(UserActions\NickSpells\NickSpells)"}},

        {{"TheArchive"}},
        {{R"(TheArchive\Bookshelf)", R"(TheArchive\DVDRack)", R"(TheArchive\Jukebox)",
          R"(TheArchive\Songbook)", R"(TheArchive\Arcade)", R"(TheArchive\Hyperlink)"}},
    };
    return catalogue;
}

} // namespace quillfen
