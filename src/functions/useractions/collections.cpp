#include "functions/useractions/collections.h"

#include "settings/listfile.h"

namespace quillfen {
namespace {

std::string pathOf(const std::string& word, const std::string& file)
{
    return "UserActions\\" + word + "s\\" + word + file;
}

ListFile textsFile(const std::string& word)
{
    return {pathOf(word, "s.tbl"), "t" + word + "s"};
}

Collection collection(const std::string& word, const std::string& delay)
{
    Collection result;
    result.settings = {pathOf(word, "Settings.tbl"),
                       "t" + word + "Settings",
                       {flag("bManualControl", "chkManualControl", "Manual Control", "0"),
                        flag("bSendToAll", "chkSendToAll", "Send To All", "1"),
                        number("iDelay", "txtDelay(0)", "Delay", delay, 10, 720)},
                       {"bManualControl", "iDelay", "bSendToAll"}};
    RowListDeclaration& texts = result.texts = listOf(word, Fewest::One);
    texts.list = "lvw" + word + "s";
    texts.toolbar = "tlb" + word + "s";
    texts.columns = {word + "s"};
    texts.menu = "mnuFirst";
    texts.load = loadOf(textsFile(word));
    texts.save = saveOf(textsFile(word));
    return result;
}

/// `firstText` is the row of a list that is missing.
void build(const std::string& word, const Collection& built, const std::string& firstText,
           const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(built.settings, files, profiles);
    writeIfMissing(files, textsFile(word).path, composedList(textsFile(word), {{firstText}}));
}

} // namespace

const Collection& jokes()
{
    static const Collection declared = collection("Joke", "103");
    return declared;
}

const Collection& limericks()
{
    static const Collection declared = collection("Limerick", "93");
    return declared;
}

const Collection& proverbs()
{
    static const Collection declared = collection("Proverb", "73");
    return declared;
}

const Collection& quotations()
{
    static const Collection declared = collection("Quotation", "89");
    return declared;
}

void buildJokes(const SettingsFiles& files, const HubProfiles& profiles)
{
    build("Joke", jokes(), "Cannot find REALITY.SYS. Universe halted", files, profiles);
}

void buildLimericks(const SettingsFiles& files, const HubProfiles& profiles)
{
    build("Limerick", limericks(),
          "There once was an old man of Esser,|Whose knowledge grew lesser and lesser,|"
          "It at last grew so small|He knew nothing at all,|And now he's a college professor.",
          files, profiles);
}

void buildProverbs(const SettingsFiles& files, const HubProfiles& profiles)
{
    build("Proverb", proverbs(), "A lie can be halfway around the world before the truth gets its boots on",
          files, profiles);
}

void buildQuotations(const SettingsFiles& files, const HubProfiles& profiles)
{
    build("Quotation", quotations(),
          "Experience has taught me that you feel better on a flight "
          "if you avoid chicken fat in plastic sauce.|"
          "Tavis Orlemon on the joys of travelling the world by plane",
          files, profiles);
}

} // namespace quillfen
