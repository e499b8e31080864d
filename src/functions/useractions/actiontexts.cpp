#include "functions/useractions/actiontexts.h"

namespace quillfen {
namespace {

ListFile insultsFile()
{
    return {R"(UserActions\Insults\Insults.tbl)", "tInsults"};
}

ListFile attacksFile()
{
    return {R"(UserActions\Attacks\Attacks.tbl)", "tAttacks"};
}

ListFile doActionsFile()
{
    return {R"(UserActions\DoAction\DoAction.tbl)", "tDoAction", ListFile::Form::Keyed};
}

NestedListsFile medievalFile()
{
    return {R"(UserActions\Insults\InsultsMedieval.tbl)", "tInsultsMedieval", {"tOne", "tTwo", "tThree"}};
}

NestedListsFile modernFile()
{
    return {
        R"(UserActions\Insults\InsultsModern.tbl)", "tInsultsModern", {"tOne", "tTwo", "tThree", "tFour"}};
}

// The rows of a fresh file, which RESTORE shows again.
std::vector<ListRow> firstInsults()
{
    return {{"*** !username! Says 'People can't say that !victim! has absolutely nothing!"
             " After all, they have inferiority!'"}};
}

std::vector<ListRow> firstAttacks()
{
    return {{"*** !username! blows !victim!'s brains out"}};
}

std::vector<ListRow> firstDoActions()
{
    return {{"beer", "*** !username! drinks an ice cold beer"}};
}

std::vector<std::string> firstMedievalWords()
{
    return {"artless", "boil brained", "hedge-pig"};
}

std::vector<std::string> firstModernWords()
{
    return {"amorphous", "blob of", "fly-covered", "kangaroo vomit"};
}

using Restored = std::function<std::vector<CellRow>(const HubProfiles&)>;

Restored rowsOf(const std::vector<ListRow>& rows)
{
    return [cells = cellRows(rows)](const HubProfiles&) { return cells; };
}

/// How the boxes and dialogs of a list call its rows. They were copied from list to list, so that some ask
/// about another list's rows.
struct ListWords
{
    std::string item;    ///< "Insult"
    std::string minimum; ///< what there must be one of
    std::string title;   ///< "Delete ...?"
    std::string text;    ///< "Do you really want to delete this ...?"
};

RowListDeclaration listOf(const ListWords& words)
{
    RowListDeclaration list = listOf(words.item, Fewest::One);
    list.deletion = deletionOf(words.title, words.text, words.minimum);
    return list;
}

RowListDeclaration listOfFile(const ListFile& file, const std::vector<ListRow>& first, const ListWords& words,
                              const std::string& plural, std::string_view explanation)
{
    RowListDeclaration list = listOf(words);
    list.list = "lvw" + plural;
    list.toolbar = "tlb" + plural;
    list.explanation = explanation;
    list.columns = {plural};
    list.menu = "mnuFirst";
    list.load = loadOf(file);
    list.save = saveOf(file);
    list.restored = rowsOf(first);
    return list;
}

/// One list for each column of words, in the order of the file.
RowListGroup wordLists(const NestedListsFile& file, const std::vector<std::string>& first,
                       const std::vector<ListWords>& words)
{
    static const std::string places[] = {"One", "Two", "Three", "Four"};
    static const std::string labels[] = {"First Word", "Second Word", "Third Word", "Fourth Word"};
    static const std::string menus[] = {"mnuFirst", "mnuSecond", "mnuThird", "mnuFourth"};
    RowListGroup group;
    for (std::size_t place = 0; place < words.size(); ++place) {
        RowListDeclaration list = listOf(words[place]);
        list.list = "lvwInsults" + places[place];
        list.toolbar = "tlbInsults" + places[place];
        list.explanation = "Each row is a word from which the hub script composes an insult.";
        list.columns = {labels[place]};
        list.menu = menus[place];
        list.load = loadOf(file, place);
        list.restored = rowsOf({{first[place]}});
        group.lists.push_back(list);
    }
    group.save = saveOf(file);
    return group;
}

/// The text of a fresh file: one word in each table.
std::string oneWordEach(const NestedListsFile& file, const std::vector<std::string>& words)
{
    std::vector<std::vector<std::string>> lists;
    lists.reserve(words.size());
    for (const std::string& word : words)
        lists.push_back({word});
    return composedNestedLists(file, lists);
}

constexpr Twips formSize = {9000, 5400};

} // namespace

const RowListDeclaration& insults()
{
    static const RowListDeclaration list = listOfFile(
        insultsFile(), firstInsults(), {"Insult", "Insult", "Insult", "Insult"}, "Insults",
        "Each row is a text with which one user insults another; !username! and !victim! stand for the two.");
    return list;
}

const RowListDeclaration& attacks()
{
    static const RowListDeclaration list = listOfFile(
        attacksFile(), firstAttacks(), {"Attack", "Intro", "Intro", "intro"}, "Attacks",
        "Each row is a text with which one user attacks another; !username! and !victim! stand for the two.");
    return list;
}

const RowListDeclaration& doActions()
{
    static const RowListDeclaration declared = [] {
        RowListDeclaration list = listOfFile(
            doActionsFile(), firstDoActions(), {"DoAction", "Intro", "DoAction", "intro"}, "DoActions",
            "Each row is a command and the action that it sends, in which !username! stands for the user.");
        list.columns = {"Command", "Action"};
        list.dialog.form = EditForm::TwoFields;
        list.dialog.labels = {"Command", "Action"};
        return list;
    }();
    return declared;
}

const RowListGroup& medievalInsults()
{
    static const ListWords words = {"Medieval Insult", "Medieval Insult", "Medieval Insult",
                                    "Medieval Insult"};
    static const RowListGroup group = wordLists(medievalFile(), firstMedievalWords(), {words, words, words});
    return group;
}

const RowListGroup& modernInsults()
{
    static const std::string modern = "Modern Insult";
    static const std::string medieval = "Medieval Insult";
    static const RowListGroup group = wordLists(modernFile(), firstModernWords(),
                                                {
                                                    {modern, modern, modern, medieval},
                                                    {modern, modern, modern, modern},
                                                    {modern, medieval, modern, modern},
                                                    {modern, modern, modern, modern},
                                                });
    return group;
}

FunctionDeclaration insultsFunction()
{
    // The build misspells the third table, which no form reads: the list stays empty until a first save
    // writes the table by its name.
    NestedListsFile fresh = medievalFile();
    fresh.tables.back() = "tThreee";
    return {
        .nodes = {{"UserActions~Insults", "Insults"},
                  {"UserActions~Insults~Standard", "Standard",
                   listForm({"frmUserActionsInsultsStandard", "UserActions ~ Insults ~ Standard", formSize},
                            insults),
                   "Insults ~ Standard"},
                  {"UserActions~Insults~Medieval", "Medieval",
                   listsForm({"frmUserActionsInsultsMedieval", "UserActions ~ Insults ~ Medieval", formSize},
                             medievalInsults),
                   "Insults ~ Medieval"},
                  {"UserActions~Insults~Modern", "Modern",
                   listsForm({"frmUserActionsInsultsModern", "UserActions ~ Insults ~ Modern", formSize},
                             modernInsults),
                   "Insults ~ Modern"}},
        .folders = {R"(UserActions\Insults)"},
        .build = {firstRows(insultsFile(), firstInsults()),
                  FirstText{medievalFile().path, oneWordEach(fresh, firstMedievalWords())},
                  FirstText{modernFile().path, oneWordEach(modernFile(), firstModernWords())}}};
}

FunctionDeclaration attacksFunction()
{
    return {.nodes = {{"UserActions~Attacks", "Attacks",
                       listForm({"frmUserActionsAttacks", "UserActions ~ Attacks", formSize}, attacks)}},
            .folders = {R"(UserActions\Attacks)"},
            .build = {firstRows(attacksFile(), firstAttacks())}};
}

FunctionDeclaration doActionsFunction()
{
    return {.nodes = {{"UserActions~DoAction", "DoAction",
                       listForm({"frmUserActionsDoAction", "UserActions ~ DoAction", formSize}, doActions)}},
            .folders = {R"(UserActions\DoAction)"},
            .build = {firstRows(doActionsFile(), firstDoActions())}};
}

} // namespace quillfen
