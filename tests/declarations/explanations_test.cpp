#include "functions/catalogue.h"
#include "functions/games/numbers.h"
#include "functions/games/trivia.h"
#include "functions/general/languages.h"
#include "support/hub.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillfen {
namespace {

/// Something of a form that an owner may ask about: what it is, its control, and what it says of itself.
struct Explained
{
    std::string kind;
    std::string control;
    std::string sentence;
};

/// Walks over the parts of a form and takes all that an owner may ask about.
class FormWalk
{
public:
    FormWalk(const FormDeclaration& form, const HubProfiles& profiles)
    {
        for (const PartDeclaration& part : form.parts) {
            for (const TableFile& file : settingsFilesOf(part))
                walk(file);
            for (const RowListDeclaration& list : listsOf(part, profiles))
                add("lists", list.list, list.explanation);
            std::visit([this](const auto& each) { walkBesides(each); }, part);
        }
    }

    std::vector<Explained> take() { return std::move(m_found); }

private:
    void add(const char* kind, const std::string& control, std::string_view sentence)
    {
        m_found.push_back({kind, control, std::string(sentence)});
    }

    void walkBesides(const auto& /*of settings and lists alone*/) {}
    void walkBesides(const DeclaredText& text) { add("texts", text.toolbar, text.explanation); }
    void walkBesides(const DeclaredGrid& grid) { add("grids", grid.words.list, grid.words.explanation); }

    void walkBesides(const DeclaredTicks& declared)
    {
        const TickList ticks = declared.ticks();
        add("ticks", ticks.control, ticks.explanation);
    }

    void walkBesides(const OwnPart& own)
    {
        for (const ControlExplanation& each : own.explanations)
            add("other controls", each.control, each.explanation);
    }

    void walk(const TableFile& file)
    {
        for (const Setting& each : file.settings)
            std::visit([this](const auto& setting) { walkSetting(setting); }, each);
    }

    void walkSetting(const setting::Field& field) { add("settings", field.control, field.explanation); }
    void walkSetting(const setting::Idle& idle) { walkSetting(idle.field); }
    void walkSetting(const setting::NamedTexts& texts) { add("settings", texts.control, texts.explanation); }
    void walkSetting(const auto& /*has no control*/) {}

    std::vector<Explained> m_found{};
};

std::string groupOf(const Node& node)
{
    return node.key.substr(0, node.key.find('~'));
}

/// How many of each kind have no sentence, by the group of their form's node.
using Unexplained = std::map<std::string, std::map<std::string, std::size_t>>;

Unexplained unexplainedOf(const std::vector<Node>& nodes, const HubProfiles& profiles)
{
    Unexplained all;
    for (const Node& node : nodes) {
        if (!node.form)
            continue;
        for (const Explained& each : FormWalk(*node.form, profiles).take()) {
            if (each.sentence.empty())
                ++all[groupOf(node)][each.kind];
        }
    }
    return all;
}

/// Whether a word is of a file and not of an owner: a key such as "bFlatRC", or a path.
bool isOfAFile(std::string_view word)
{
    const auto isUpper = [](char character) { return character >= 'A' && character <= 'Z'; };
    const bool isKey = word.size() > 2 && std::string_view("bist").find(word[0]) != std::string_view::npos &&
                       isUpper(word[1]);
    return isKey || word.find('\\') != std::string_view::npos;
}

bool namesAFile(std::string_view sentence)
{
    std::string_view rest = sentence;
    while (!rest.empty()) {
        const auto end = std::min(rest.find(' '), rest.size());
        if (isOfAFile(rest.substr(0, end)))
            return true;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return false;
}

/// Whether a character is one that sentences are made of; the last ones stand in what the hub script fills
/// in.
bool isPlain(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0 ||
           std::string_view(" .,:;'-!|").find(character) != std::string_view::npos;
}

/// What is wrong with a sentence.
std::vector<std::string> faultsOf(std::string_view sentence)
{
    std::vector<std::string> found;
    if (sentence.empty())
        return {"empty"};
    const auto expect = [&found](bool good, const char* fault) {
        if (!good)
            found.emplace_back(fault);
    };
    expect(sentence.front() >= 'A' && sentence.front() <= 'Z', "begins in the middle");
    expect(sentence.ends_with('.') && sentence.find('.') == sentence.size() - 1, "not one sentence");
    expect(sentence.find("  ") == std::string::npos, "two blanks");
    expect(!namesAFile(sentence), "names what stands in a file");
    expect(std::ranges::all_of(sentence, isPlain), "not plain");
    expect(sentence.size() <= 160, "long");
    return found;
}

/// What is wrong with the sentences of a form, each as "<form>: <control>: <fault>".
std::vector<std::string> faultsOf(const FormDeclaration& form, const HubProfiles& profiles)
{
    std::vector<std::string> found;
    for (const Explained& each : FormWalk(form, profiles).take()) {
        if (each.sentence.empty())
            continue;
        for (const std::string& fault : faultsOf(each.sentence))
            found.push_back(form.form.name + ": " + each.control + ": " + fault);
    }
    return found;
}

class Explanations : public testing::Test
{
protected:
    test::Hub hub;
};

/// The same settings, one of them with a sentence, in all the kinds of parts.
FormDeclaration formOfEachKind()
{
    const auto file = [] {
        return TableFile{"a.tbl",
                         "t",
                         {setting::flag("bOne", "chkOne", "One", false).explained("Does one thing."),
                          setting::flag("bTwo", "chkTwo", "Two", false),
                          setting::Idle{setting::flag("bThree", "chkThree", "Three", false)},
                          setting::NamedTexts{"tFour", "lvwFour", "Four", {}},
                          setting::ConstantText{"sFive", "has no control"}}};
    };
    const auto list = [] { return RowListDeclaration{.list = "lvwRows", .toolbar = "tlbRows"}; };
    return {{"frmKinds", "Kinds"},
            {DeclaredSettings{file}, listPart(list), DeclaredLists{[list] {
                 return RowListGroup{{list(), list()}, {}};
             }},
             DeclaredTexts{list, ""}, DeclaredGrid{}, DeclaredTicks{[] { return TickList{}; }},
             DeclaredText{},
             OwnPart{.kind = OwnPartKind::Rules,
                     .files = [file] { return std::vector{file()}; },
                     .lists = [list] { return std::vector{list()}; },
                     .explanations = {{"lvwOwn", ""}}}}};
}

TEST_F(Explanations, AreMissingWhereTheLabelSaysAll)
{
    const Unexplained held = {
        {"Communication", {{"settings", 9}, {"ticks", 1}}},
        {"CustomiseUser", {{"settings", 2}}},
        {"Games", {{"settings", 60}, {"other controls", 1}}},

        {"Arcade", {{"settings", 2}, {"other controls", 1}}},
        {"Bookshelf", {{"settings", 2}, {"other controls", 1}}},
        {"DVDRack", {{"settings", 2}, {"other controls", 1}}},
        {"General", {{"settings", 1}}},
        {"Hyperlink", {{"settings", 2}, {"other controls", 1}}},
        {"Jukebox", {{"settings", 2}, {"other controls", 1}}},
        {"Security", {{"settings", 16}, {"grids", 1}}},
        {"Songbook", {{"settings", 2}, {"other controls", 1}}},
        {"UserActions", {{"settings", 13}}},
    };
    EXPECT_EQ(unexplainedOf(functionNodes(), hub.profiles), held);
}

TEST_F(Explanations, AreCountedInAllKindsOfParts)
{
    const std::vector<Node> nodes = {{"Games~Kinds", "Kinds", formOfEachKind()}, {"Games", "Games"}};
    const std::map<std::string, std::size_t> games = {{"settings", 6}, {"lists", 5}, {"grids", 1},
                                                      {"ticks", 1},    {"texts", 1}, {"other controls", 1}};
    EXPECT_EQ(unexplainedOf(nodes, hub.profiles), (Unexplained{{"Games", games}}));
}

TEST_F(Explanations, AreASentenceEach)
{
    std::vector<std::string> found;
    for (const FormDeclaration& form : formCatalogue()) {
        const auto faults = faultsOf(form, hub.profiles);
        found.insert(found.end(), faults.begin(), faults.end());
    }
    EXPECT_EQ(found, std::vector<std::string>());
}

TEST_F(Explanations, OfTheGridsOfAGroupDiffer)
{
    std::set<std::pair<std::string, std::string>> told;
    for (const Node& node : functionNodes()) {
        if (!node.form)
            continue;
        for (const Explained& each : FormWalk(*node.form, hub.profiles).take()) {
            const bool isNew = each.kind != "grids" || told.emplace(groupOf(node), each.sentence).second;
            EXPECT_TRUE(isNew) << node.key;
        }
    }
    EXPECT_EQ(told.count({"Hyperlink", "Gives the profile the right clicks of this kind."}), 1U);
}

TEST_F(Explanations, OfListsThatOwnPartsMakeAreASentenceEach)
{
    EXPECT_EQ(faultsOf(numbersCalculationList().explanation), std::vector<std::string>());
    std::vector<ListedFiles> listed = {triviaQuestionLists()};
    for (const LanguageSet& set : languageSets())
        listed.push_back(languageLists(set));
    for (const ListedFiles& files : listed) {
        for (const std::string_view sentence : {files.names.explanation, files.rows.explanation})
            EXPECT_EQ(faultsOf(sentence), std::vector<std::string>()) << sentence;
    }
}

TEST_F(Explanations, ThatAreNoSentenceAreFound)
{
    const auto faultOf = [this](std::string_view sentence) {
        const DeclaredText text = {"tlbText", "Text", "a.asc", sentence};
        const auto faults = faultsOf({{"frmText", "Text"}, {text}}, hub.profiles);
        return faults.empty() ? "" : faults.front();
    };
    EXPECT_EQ(faultOf("Tells users the IP of the hub."), "");
    EXPECT_EQ(faultOf("tells users."), "frmText: tlbText: begins in the middle");
    EXPECT_EQ(faultOf("Tells users"), "frmText: tlbText: not one sentence");
    EXPECT_EQ(faultOf("Tells users. And operators."), "frmText: tlbText: not one sentence");
    EXPECT_EQ(faultOf("Tells users\xA0some."), "frmText: tlbText: not plain");
    EXPECT_EQ(faultOf("Tells  users."), "frmText: tlbText: two blanks");
    EXPECT_EQ(faultOf("Tells users where bFlatRC is on."), "frmText: tlbText: names what stands in a file");
    EXPECT_EQ(faultOf("Tells users of Text\\a."), "frmText: tlbText: names what stands in a file");
    EXPECT_EQ(faultOf(std::string(160, 'T') + '.'), "frmText: tlbText: long");
}

} // namespace
} // namespace quillfen
