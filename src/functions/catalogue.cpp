#include "functions/catalogue.h"

#include "functions/archive/archive.h"
#include "functions/communication/autocorrect.h"
#include "functions/communication/changers.h"
#include "functions/communication/chatpermissions.h"
#include "functions/communication/chatrooms.h"
#include "functions/communication/clock.h"
#include "functions/communication/massmessage.h"
#include "functions/communication/motd.h"
#include "functions/communication/rotatingmessages.h"
#include "functions/communication/welcomeinfo.h"
#include "functions/communication/whisper.h"
#include "functions/games/trivia.h"
#include "functions/general/bots.h"
#include "functions/general/settings.h"
#include "functions/general/switches.h"
#include "functions/security/kicks.h"
#include "functions/useractions/actiontexts.h"
#include "functions/useractions/ascii.h"
#include "functions/useractions/calculator.h"
#include "functions/useractions/collections.h"
#include "functions/useractions/spells.h"

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
        {{R"(Communication\AutoCorrect)"}, {buildAutoCorrect}},
        {{R"(Communication\ChatRooms)"}, {buildChatRooms}},
        {{R"(Communication\Clock)"}, {buildClock}},
        {{R"(Communication\KickBarChanger)"}, {buildKickBarChanger}},
        {{R"(Communication\MassMessage)"}, {buildMassMessage}},
        {{R"(Communication\MOTD)", R"(Communication\MOTD\MOTDs)"}, {buildMotds}},
        {{R"(Communication\Mute)"}, {buildMute}},
        {{R"(Communication\RotatingMainMessage)", R"(Communication\RotatingMainMessage\Files)"},
         {buildRotatingMainMessages}},
        {{R"(Communication\RotatingPrivateMessage)", R"(Communication\RotatingPrivateMessage\Files)"},
         {buildRotatingPrivateMessages}},
        {{R"(Communication\Talk)"}, {buildTalk}},
        {{R"(Communication\TopicChanger)"}, {buildTopicChanger}},
        {{R"(Communication\WelcomeInfo)"}, {buildWelcomeInfo}},
        {{R"(Communication\Whisper)"}, {buildWhisper}},

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
        {{R"(Security\AntiAdvertise)"}},
        {{R"(Security\AntiVirus)"}},
        {{R"(Security\BadNickBlocker)"}},
        {{R"(Security\ClientChecker)"}},
        {{R"(Security\CloneBlocker)"}},
        {{R"(Security\CommandSpy)"}},
        {{R"(Security\Flood)"}},
        {{R"(Security\Kick)", R"(Security\Kick\Logs)"}, {buildKicks}},
        {{R"(Security\MainBlock)"}},
        {{R"(Security\MainCleaner)"}},
        {{R"(Security\MainLock)"}},
        {{R"(Security\PrivateHub)"}},
        {{R"(Security\ProfileRules)", R"(Security\ProfileRules\Logs)"}},
        {{R"(Security\PtokaX)"}},
        {{R"(Security\Registration)", R"(Security\Registration\Logs)"}},
        {{R"(Security\Report)"}},
        {{R"(Security\Rules)", R"(Security\Rules\Ascii)"}},
        {{R"(Security\SearchSpy)"}},
        {{R"(Security\UserLog)", R"(Security\UserLog\Logs)"}},

        {{"UserActions"}},
        {{R"(UserActions\Ascii)", R"(UserActions\Ascii\Ascii)"}, {buildAscii}},
        {{R"(UserActions\Attacks)"}, {buildAttacks}},
        {{R"(UserActions\Calculator)"}, {buildCalculator}},
        {{R"(UserActions\DoAction)"}, {buildDoActions}},
        {{R"(UserActions\Insults)"}, {buildInsults}},
        {{R"(UserActions\Jokes)"}, {buildJokes}},
        {{R"(UserActions\Limericks)"}, {buildLimericks}},
        {{R"(UserActions\Proverbs)"}, {buildProverbs}},
        {{R"(UserActions\Quotations)"}, {buildQuotations}},
        {{R"(UserActions\Spells)", R"(UserActions\Spells\Spells)"}, {buildSpells}},
        {{R"(UserActions\NickSpells)", R"(UserActions\NickSpells\NickSpells)"}, {buildNickSpells}},

        {{"TheArchive"}},
        {{R"(TheArchive\Bookshelf)", R"(TheArchive\DVDRack)", R"(TheArchive\Jukebox)",
          R"(TheArchive\Songbook)", R"(TheArchive\Arcade)", R"(TheArchive\Hyperlink)"},
         {buildHyperlink}},
    };
    return catalogue;
}

} // namespace quillfen
