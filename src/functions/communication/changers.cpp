#include "functions/communication/changers.h"

#include "settings/tablewriter.h"

namespace quillfen {
namespace {

/// The words in which the two differ.
struct ChangerWords
{
    std::string name; ///< of folder, files and tables
    std::string list;
    std::string toolbar;
    std::string column;
    std::string label;
    std::string text; ///< one of the texts, as dialogs and boxes call it
    std::string_view delayExplained;
    std::string_view textsExplained;
};

ChangerWords topicWords()
{
    return {
        "TopicChanger",
        "lvwTopics",
        "tlbTopics",
        "Topics",
        "Topics",
        "Topic",
        "Sets the interval at which the hub's topic changes.",
        "Each row is a topic of those that the hub changes between.",
    };
}

ChangerWords kickBarWords()
{
    return {
        "KickBarChanger",
        "lvwKickBars",
        "tlbKickBars",
        "KickBars",
        "KickBar Topics",
        "KickBar",
        "Sets the interval at which the text of the kick bar changes.",
        "Each row is a text of those that the kick bar changes between.",
    };
}

std::string changerPath(const ChangerWords& words, const std::string& file)
{
    return "Communication\\" + words.name + "\\" + words.name + file;
}

ListFile changerTexts(const ChangerWords& words)
{
    return {changerPath(words, "Topics.tbl"), "t" + words.name + "Topics"};
}

Changer changer(const ChangerWords& words)
{
    RowListDeclaration texts = listOf(words.text, Fewest::None);
    texts.list = words.list;
    texts.toolbar = words.toolbar;
    texts.label = words.label;
    texts.explanation = words.textsExplained;
    texts.columns = {words.column};
    texts.menu = "mnuFirst";
    texts.load = loadOf(changerTexts(words));
    texts.save = saveOf(changerTexts(words));
    texts.restored = noRows;
    return {{changerPath(words, "Settings.tbl"),
             "t" + words.name + "Settings",
             {setting::number("iDelay", "txtDelay", "Delay", 10, 1, 720).explained(words.delayExplained)}},
            texts};
}

FormDeclaration changerForm(const FormDescription& form, const Changer& (*changer)())
{
    return settingsAndListForm(
        form, [changer] { return changer().settings; }, [changer] { return changer().texts; });
}

/// The build looks for the texts one folder too deep, finds none, and writes them empty each time: a rebuild
/// loses the owner's topics. The kick bar's build looks in the right place and keeps its texts.
void emptyTopics(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    const ListFile texts = changerTexts(topicWords());
    if (!files.store().exists(
            files.paths().inSettings(R"(Communication\TopicChanger\TopicChanger\TopicChangerTopics.tbl)")))
        files.WriteSettingsFile(texts.path, TableWriter(texts.table).closed());
}

} // namespace

const Changer& topicChanger()
{
    static const Changer topics = changer(topicWords());
    return topics;
}

const Changer& kickBarChanger()
{
    static const Changer kickBars = changer(kickBarWords());
    return kickBars;
}

FunctionDeclaration topicChangerFunction()
{
    return {.nodes = {{"Communication~TopicChanger", "Topic Changer",
                       changerForm({"frmCommunicationTopicChanger", "Communication ~ TopicChanger"},
                                   topicChanger)}},
            .folders = {R"(Communication\TopicChanger)"},
            .build = {RebuiltSettings{[] { return topicChanger().settings; }}, emptyTopics}};
}

FunctionDeclaration kickBarChangerFunction()
{
    return {.nodes = {{"Communication~KickBarChanger", "KickBar Changer",
                       changerForm({"frmCommunicationKickBarChanger", "Communication ~ KickBarChanger"},
                                   kickBarChanger)}},
            .folders = {R"(Communication\KickBarChanger)"},
            .build = {RebuiltSettings{[] { return kickBarChanger().settings; }},
                      emptyTable(changerTexts(kickBarWords()))}};
}

} // namespace quillfen
