#include "shell/window/navigatortable.h"

#include <QSet>

#include <algorithm>

namespace quillfen {
namespace {

struct Row
{
    const char* key;
    const char* caption;
    const char* dropDown = nullptr;
};

constexpr Row rows[] = {
    {"General", "General"},
    {"General~Settings", "Settings"},
    {"General~Bots", "Bots"},
    {"General~Language", "Language"},
    {"General~Commands", "Commands", "Language~Commands"},
    {"General~Messages", "Messages", "Language~Messages"},
    {"General~RightClicks", "RightClicks", "Language~RightClicks"},
    {"General~News", "News Archive", "News"},
    {"General~Switches", "Switches"},
    {"General~EnabledRightClicks", "Enabled Right Clicks"},
    {"Communication", "Communication"},
    {"Communication~AutoCorrect", "AutoCorrect"},
    {"Communication~ChatRooms", "ChatRooms"},
    {"Communication~Clock", "Clock"},
    {"Communication~KickBarChanger", "KickBar Changer"},
    {"Communication~MassMessage", "Mass Message"},
    {"Communication~MOTD", "Message Of The Day"},
    {"Communication~Mute", "Mute"},
    {"Communication~Portal", "Portal"},
    {"Communication~RotatingMainMessage", "Rotating Main Message"},
    {"Communication~RotatingPrivateMessage", "Rotating Private Message"},
    {"Communication~Talk", "Talk"},
    {"Communication~TopicChanger", "Topic Changer"},
    {"Communication~WelcomeInfo", "WelcomeInfo"},
    {"Communication~WelcomeInfo~Settings", "Settings", "WelcomeInfo ~ Settings"},
    {"Communication~WelcomeInfo~NetworkHubs", "Network Hubs", "Welcome Info ~ Network Hubs"},
    {"CustomiseUser", "Customise User"},
    {"CustomiseUser~CustomRightClick", "Custom Right Click"},
    {"CustomiseUser~DescriptionTags", "Description Tags"},
    {"CustomiseUser~HideShare", "Hide Share"},
    {"CustomiseUser~IntroOutro", "Intros & Outros"},
    {"CustomiseUser~IntroOutro~Standard", "Standard", "IntroOutro ~ Standard"},
    {"CustomiseUser~IntroOutro~Custom", "Custom", "IntroOutro ~ Custom"},
    {"CustomiseUser~IntroOutro~Ascii", "Ascii", "IntroOutro ~ Ascii"},
    {"Games", "Games"},
    {"Games~Anagrams", "Anagrams"},
    {"Games~CodeBreaker", "CodeBreaker"},
    {"Games~GuessTheNumber", "Guess The Number"},
    {"Games~Hangman", "Hangman"},
    {"Games~Numbers", "Numbers"},
    {"Games~RussianRoulette", "Russian Roulette"},
    {"Games~ScoreClearers", "Score Clearers"},
    {"Games~SlotMachine", "Slot Machine"},
    {"Games~ThreeCardMonty", "Three Card Monty"},
    {"Games~Trivia", "Trivia"},
    {"Games~Trivia~Settings", "Settings", "Trivia ~ Settings"},
    {"Games~Trivia~Questions", "Questions", "Trivia ~ Questions"},
    {"Security", "Security"},
    {"Security~AntiAdvertise", "AntiAdvertise"},
    {"Security~AntiAdvertise~Settings", "Settings", "AntiAdvertise ~ Settings"},
    {"Security~AntiAdvertise~Addresses", "Addresses", "AntiAdvertise ~ Addresses"},
    {"Security~AntiVirus", "Anti-Virus"},
    {"Security~BadNickBlocker", "Bad Nick Blocker"},
    {"Security~ClientChecker", "Client Checker"},
    {"Security~CloneBlocker", "CloneBlocker"},
    {"Security~CommandSpy", "Command Spy"},
    {"Security~Flooder", "Flooder"},
    {"Security~Kicks", "Kicks"},
    {"Security~Kicks~Settings", "Settings", "Kicks ~ Settings"},
    {"Security~Kicks~Permissions", "Permissions", "Kicks ~ Permissions"},
    {"Security~MainBlock", "Main Block"},
    {"Security~MainCleaner", "Main Cleaner"},
    {"Security~MainLock", "Main Lock"},
    {"Security~PtokaXSettings", "PtokaX Settings"},
    {"Security~PrivateHub", "Private Hub"},
    {"Security~ProfileRules", "Profile Rules"},
    {"Security~ProfileRules~Settings", "Settings", "Profile Rules ~ Settings"},
    {"Security~ProfileRules~Rules", "Rules", "Profile Rules ~ Rules"},
    {"Security~Registration", "Registration"},
    {"Security~Report", "Report"},
    {"Security~Rules", "Rules"},
    {"Security~SearchSpy", "Search Spy"},
    {"Security~UserLog", "UserLog"},
    {"UserActions", "User Actions"},
    {"UserActions~Ascii", "Ascii"},
    {"UserActions~Attacks", "Attacks"},
    {"UserActions~Calculator", "Calculator"},
    {"UserActions~DoAction", "DoAction"},
    {"UserActions~Insults", "Insults"},
    {"UserActions~Insults~Standard", "Standard", "Insults ~ Standard"},
    {"UserActions~Insults~Medieval", "Medieval", "Insults ~ Medieval"},
    {"UserActions~Insults~Modern", "Modern", "Insults ~ Modern"},
    {"UserActions~Jokes", "Jokes"},
    {"UserActions~Limericks", "Limericks"},
    {"UserActions~Proverbs", "Proverbs"},
    {"UserActions~Quotations", "Quotations"},
    {"UserActions~Spells", "Spells"},
    {"UserActions~Spells~Settings", "Settings", "Spells ~ Settings"},
    {"UserActions~Spells~SpellBook", "Spell Book", "Spells ~ Spell Book"},
    {"UserActions~NickSpells", "NickSpells"},
    {"UserActions~NickSpells~Settings", "Settings", "Nick Spells ~ Settings"},
    {"UserActions~NickSpells~SpellBook", "Nick Spell Book", "Nick Spells ~ Spell Book"},
};

/// The six members of the archive have the same four functions each.
constexpr const char* archiveWords[] = {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"};

constexpr Row archiveRows[] = {
    {"LinkOfTheWeek", "Link Of The Week"},
    {"NewLinks", "New Links"},
    {"Permissions", "Permissions"},
    {"RightClicks", "RightClicks"},
};

struct NamedForm
{
    const char* key;
    const char* form;
};

/// The forms whose name isn't "frm" and the key's words.
constexpr NamedForm namedForms[] = {
    {"General~Settings", "frmGeneralGeneral"},
    {"General~Commands", "frmLanguageCommands"},
    {"General~Messages", "frmLanguageMessages"},
    {"General~RightClicks", "frmLanguageRightClick"},
    {"General~EnabledRightClicks", "frmGeneralRightClicks"},
    {"CustomiseUser~IntroOutro~Standard", "frmCustomiseUserIntroOutro"},
    {"CustomiseUser~IntroOutro~Custom", "frmCustomiseUserCustomIntroOutro"},
    {"CustomiseUser~IntroOutro~Ascii", "frmCustomiseUserAsciiIntro"},
    {"Games~ScoreClearers", "frmGamesGlobalsScoreClearers"},
    {"Games~Trivia~Settings", "frmGamesTrivia"},
    {"Security~ClientChecker", "frmSecurityClientCheckerSettings"},
    {"Security~Flooder", "frmSecurityFlood"},
    {"Security~Kicks~Settings", "frmSecurityKickSettings"},
    {"Security~Kicks~Permissions", "frmSecurityKickPermissions"},
    {"Security~ProfileRules~Settings", "frmSecurityProfileRuleSettings"},
    {"Security~ProfileRules~Rules", "frmSecurityProfileRuleRules"},
    {"Security~UserLog", "frmSecurityUserLogSettings"},
    {"UserActions~Spells~Settings", "frmUserActionsSpellSettings"},
    {"UserActions~NickSpells~Settings", "frmUserActionsNickSpellSettings"},
};

/// Forms that no node and no drop-down reaches: they are complete and wait for a node.
constexpr const char* formsWithoutNode[] = {"Communication~HubEmail", "Communication~Whisper"};

QList<NavigatorRow> allRows()
{
    QList<NavigatorRow> all;
    for (const Row& row : rows)
        all.append({row.key, row.caption, row.dropDown ? row.dropDown : row.caption});
    for (const QString word : archiveWords) {
        all.append({word, word, word});
        for (const Row& row : archiveRows)
            all.append({word + '~' + row.key, row.caption, row.caption});
    }
    return all;
}

QSet<QString> allParents()
{
    QSet<QString> parents;
    for (const NavigatorRow& row : navigatorRows())
        parents.insert(parentKey(row.key));
    return parents;
}

QString archiveForm(const QString& word, const QString& function)
{
    if (function == "LinkOfTheWeek")
        return "frm" + word + "Week";
    if (function == "NewLinks")
        return "frm" + word + "NewItems";
    // Of the six, only Hyperlink's right clicks have a form.
    if (function == "RightClicks" && word != "Hyperlink")
        return {};
    return "frm" + word + function;
}

bool hasRow(const QString& key)
{
    const auto& all = navigatorRows();
    return std::any_of(all.begin(), all.end(), [&key](const NavigatorRow& row) { return row.key == key; });
}

} // namespace

const QList<NavigatorRow>& navigatorRows()
{
    static const QList<NavigatorRow> all = allRows();
    return all;
}

QString parentKey(const QString& key)
{
    if (key == "General~Commands" || key == "General~Messages" || key == "General~RightClicks")
        return "General~Language"; // the three language forms, whose keys came before their heading
    return key.section('~', 0, -2);
}

bool isHeading(const QString& key)
{
    static const QSet<QString> parents = allParents();
    return parents.contains(key);
}

QStringList formKeys()
{
    QStringList keys;
    for (const NavigatorRow& row : navigatorRows()) {
        if (!formName(row.key).isEmpty())
            keys.append(row.key);
    }
    for (const char* key : formsWithoutNode)
        keys.append(key);
    return keys;
}

QString formName(const QString& key)
{
    for (const NamedForm& named : namedForms) {
        if (key == named.key)
            return named.form;
    }
    const QString word = key.section('~', 0, 0);
    if (isHeading(key) ||
        !(hasRow(key) || std::ranges::find(formsWithoutNode, key) != std::end(formsWithoutNode)))
        return {};
    if (std::ranges::find(archiveWords, word) != std::end(archiveWords))
        return archiveForm(word, key.section('~', 1));
    return "frm" + QString(key).remove('~');
}

QString keyOfForm(const QString& name)
{
    const QStringList keys = formKeys();
    const auto found = std::ranges::find(keys, name, formName);
    return found == keys.end() ? QString() : *found;
}

QString captionOfKey(const QString& key)
{
    return QString(key).replace('~', QStringLiteral(" ~ "));
}

} // namespace quillfen
