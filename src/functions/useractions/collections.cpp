#include "functions/useractions/collections.h"

namespace quillfen {
namespace {

std::string collectionPath(const std::string& word, const std::string& file)
{
    return "UserActions\\" + word + "s\\" + word + file;
}

ListFile collectionTexts(const std::string& word)
{
    return {collectionPath(word, "s.tbl"), "t" + word + "s"};
}

Collection collection(const std::string& word, int delay)
{
    Collection result;
    result.settings = {collectionPath(word, "Settings.tbl"),
                       "t" + word + "Settings",
                       {setting::flag("bManualControl", "chkManualControl", "Manual Control", false),
                        setting::flag("bSendToAll", "chkSendToAll", "Send To All", true),
                        setting::number("iDelay", "txtDelay(0)", "Delay", delay, 10, 720)
                            .explained("Sets the timer on which the texts are sent.")},
                       {"bManualControl", "iDelay", "bSendToAll"}};
    RowListDeclaration& texts = result.texts = listOf(word, Fewest::One);
    texts.list = "lvw" + word + "s";
    texts.toolbar = "tlb" + word + "s";
    texts.explanation =
        "Each row is a text that is sent by command or on a timer; a | in it begins a new line.";
    texts.columns = {word + "s"};
    texts.menu = "mnuFirst";
    texts.load = loadOf(collectionTexts(word));
    texts.save = saveOf(collectionTexts(word));
    return result;
}

/// `firstText` is the row of a list that is missing.
FunctionDeclaration collectionFunction(const std::string& word, const Collection& (*all)(),
                                       const std::string& firstText)
{
    const std::string name = word + "s";
    const auto settings = [all] { return all().settings; };
    return {.nodes = {{"UserActions~" + name, name,
                       settingsAndListForm({"frmUserActions" + name, "User Actions ~ " + name, {9000, 6000}},
                                           settings, [all] { return all().texts; })}},
            .folders = {"UserActions\\" + name},
            .build = {RebuiltSettings{settings}, firstRows(collectionTexts(word), {{firstText}})}};
}

} // namespace

const Collection& jokes()
{
    static const Collection declared = collection("Joke", 103);
    return declared;
}

const Collection& limericks()
{
    static const Collection declared = collection("Limerick", 93);
    return declared;
}

const Collection& proverbs()
{
    static const Collection declared = collection("Proverb", 73);
    return declared;
}

const Collection& quotations()
{
    static const Collection declared = collection("Quotation", 89);
    return declared;
}

FunctionDeclaration jokesFunction()
{
    return collectionFunction("Joke", jokes, "Cannot find REALITY.SYS. Universe halted");
}

FunctionDeclaration limericksFunction()
{
    return collectionFunction(
        "Limerick", limericks,
        "There once was an old man of Esser,|Whose knowledge grew lesser and lesser,|"
        "It at last grew so small|He knew nothing at all,|And now he's a college professor.");
}

FunctionDeclaration proverbsFunction()
{
    return collectionFunction("Proverb", proverbs,
                              "A lie can be halfway around the world before the truth gets its boots on");
}

FunctionDeclaration quotationsFunction()
{
    return collectionFunction("Quotation", quotations,
                              "Experience has taught me that you feel better on a flight "
                              "if you avoid chicken fat in plastic sauce.|"
                              "Tavis Orlemon on the joys of travelling the world by plane");
}

} // namespace quillfen
