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

namespace quillfen {

const FolderCatalogue& folderCatalogue()
{
    static const FolderCatalogue catalogue = {
        {{"CustomiseUser"}},
        {{R"(CustomiseUser\CustomRightClick)"}, {buildCustomRightClicks}},
        {{R"(CustomiseUser\DescriptionTags)"}, {buildDescriptionTags}},
        {{R"(CustomiseUser\HideShare)"}, {buildHideShare}},
        {{R"(CustomiseUser\IntroOutro)", R"(CustomiseUser\IntroOutro\Ascii)"},
         {buildIntrosOutros, buildAsciiIntros}},

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
        {{R"(Games\Anagrams)", R"(Games\Anagrams\ScoresArchive)"}, {buildAnagrams}},
        {{R"(Games\CodeBreaker)", R"(Games\CodeBreaker\ScoresArchive)"}, {buildCodeBreaker}},
        {{R"(Games\Globals)"}, {buildScoreClearers}},
        {{R"(Games\GuessTheNumber)", R"(Games\GuessTheNumber\ScoresArchive)"}, {buildGuessTheNumber}},
        {{R"(Games\Hangman)", R"(Games\Hangman\ScoresArchive)", R"(Games\Hangman\Ascii)"}, {buildHangman}},
        {{R"(Games\Numbers)", R"(Games\Numbers\ScoresArchive)"}, {buildNumbers}},
        {{R"(Games\RussianRoulette)"}, {buildRussianRoulette}},
        {{R"(Games\SlotMachine)"}, {buildSlotMachine}},
        {{R"(Games\ThreeCardMonty)"}, {buildThreeCardMonty}},
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
