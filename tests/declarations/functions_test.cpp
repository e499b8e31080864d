#include "declarations/rebuild.h"
#include "functions/catalogue.h"
#include "support/declarationfaults.h"
#include "support/hub.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace quillfen {
namespace {

using Found = std::vector<std::string>;

/// What is wrong with the nodes of a catalogue.
Found faultsOf(const std::vector<Node>& nodes)
{
    Found found;
    std::set<std::string> keys;
    const auto expect = [&found](bool good, const std::string& fault) {
        if (!good)
            found.push_back(fault);
    };
    for (const Node& node : nodes) {
        const auto end = node.key.find_last_of('~');
        const std::string above = !node.above.empty()        ? node.above
                                  : end == std::string::npos ? ""
                                                             : node.key.substr(0, end);
        expect(above.empty() || keys.count(above) > 0, "under no node: " + node.key);
        expect(!node.caption.empty(), "no caption: " + node.key);
        expect(test::isWorded(node.caption), "no words: " + node.caption);
        expect(test::isWorded(node.dropDown), "no words: " + node.dropDown);
        expect(node.inTree || node.form, "neither in the tree nor a form: " + node.key);
        expect(keys.insert(node.key).second, "key twice: " + node.key);
    }
    return found;
}

/// What is wrong with the folders and files of a build, as the store of a fresh hub sees them.
Found faultsOf(const FolderCatalogue& functions)
{
    test::Hub hub;
    hub.store.folders.insert(hub.root);
    Found found;
    std::set<std::string> folders;
    std::set<std::string> written;
    for (const FunctionDeclaration& function : functions) {
        for (const std::string& folder : function.folders) {
            const auto end = folder.find_last_of('\\');
            const std::string above = end == std::string::npos ? "" : folder.substr(0, end);
            if (!above.empty() && folders.count(above) == 0) {
                found.push_back("made before the folder that holds it: " + folder);
                hub.store.folders.insert(hub.files.paths().inSettings(above)); // so that the walk goes on
            }
            if (!folders.insert(folder).second)
                found.push_back("made twice: " + folder);
        }
        hub.store.log.clear();
        buildFunction(function, hub.files, hub.profiles);
        for (const std::string& line : hub.store.log) {
            if (line.starts_with("write ") && !written.insert(line.substr(6)).second)
                found.push_back("written by two steps: " + line.substr(6 + hub.root.size()));
        }
    }
    return found;
}

class Functions : public testing::Test
{
protected:
    Node& node(const char* key)
    {
        return *std::find_if(nodes.begin(), nodes.end(), [key](const Node& each) { return each.key == key; });
    }

    std::vector<Node> nodes = functionNodes();
    FolderCatalogue builds = folderCatalogue();
};

TEST_F(Functions, AllHaveRightNodes)
{
    EXPECT_EQ(nodes.size(), 124U); // 122 in the tree
    EXPECT_EQ(
        std::count_if(nodes.begin(), nodes.end(), [](const Node& each) { return each.form.has_value(); }),
        97);
    EXPECT_EQ(faultsOf(nodes), Found());
}

TEST_F(Functions, ANodeThatMissesAPartOfItselfIsFound)
{
    node("Games~Hangman").caption.clear();
    node("Communication~Whisper").form.reset();
    node("General~Bots").key = "General~Settings";
    node("Security~Kicks~Settings").key = "Security~Kick~Settings";
    EXPECT_EQ(faultsOf(nodes),
              (Found{"key twice: General~Settings", "neither in the tree nor a form: Communication~Whisper",
                     "no caption: Games~Hangman", "under no node: Security~Kick~Settings"}));
}

TEST_F(Functions, AllHaveRightBuilds)
{
    std::size_t folders = 0;
    for (const FunctionDeclaration& function : builds)
        folders += function.folders.size();
    EXPECT_EQ(folders, 100U);
    EXPECT_EQ(faultsOf(builds), Found());
}

TEST_F(Functions, AFolderOutOfItsOrderAndAFileOfTwoStepsAreFound)
{
    builds.erase(std::find_if(builds.begin(), builds.end(), [](const FunctionDeclaration& each) {
        return each.folders == std::vector<std::string>{"Games"};
    }));
    builds.push_back({.folders = {"Security"},
                      .build = {RebuiltSettings{[] {
                          return TableFile{R"(Security\Report\ReportSettings.tbl)", "tReportSettings", {}};
                      }}}});
    const Found found = faultsOf(builds);
    EXPECT_TRUE(std::ranges::count(found, R"(made before the folder that holds it: Games\Anagrams)"));
    EXPECT_TRUE(std::ranges::count(found, "made twice: Security"));
    EXPECT_TRUE(std::ranges::count(found, "written by two steps: /Security/Report/ReportSettings.tbl"));
    EXPECT_EQ(found.size(), 12U); // ten games lie in the missing folder
}

} // namespace
} // namespace quillfen
