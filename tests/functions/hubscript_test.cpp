// What the hub script sees: every file of the tree, loaded by Lua 5.1.
#include "advice/notloading.h"
#include "functions/archive/archive.h"
#include "functions/catalogue.h"
#include "functions/general/settings.h"
#include "functions/general/switches.h"
#include "lua/tablereader.h"
#include "portal/portalsettings.h"
#include "support/freshtree.h"
#include "support/golden.h"
#include "support/lua.h"
#include "support/realluas/refusal.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;

TEST(HubScript, LoadsEveryTableOfAFreshTreeButThoseThatAreKnownNotTo)
{
    test::Hub hub;
    hub.store.files["/hub/cfg/Profiles.xml"] = "<Name>Master</Name>\r\n<Name>Reg</Name>\r\n";
    test::buildTree(hub);
    int loaded = 0;
    for (const auto& [path, bytes] : hub.store.files) {
        if (!path.ends_with(".tbl"))
            continue;
        ++loaded;
        const bool known = notLoading().contains(path.substr(hub.root.size() + 1));
        try {
            EXPECT_FALSE(luaValues(bytes).empty()) << path;
            EXPECT_FALSE(known) << path << " loads by now";
        } catch (const std::runtime_error& error) {
            EXPECT_TRUE(known) << path << ": " << error.what();
        }
    }
    EXPECT_GE(loaded, 140); // with the text and list files about 150
    EXPECT_EQ(luaValues(hub.file("General/Globals/Version.tbl")),
              (LuaValues{{"tVersion.sVersion", "5.2.0"}}));
}

/// Saves what forms save in ways of their own that keep files from loading: grids, links of the week and the
/// Portal.
void saveWhatWontLoad(const test::Hub& hub)
{
    for (const FormDeclaration& form : formCatalogue()) {
        for (const PartDeclaration& part : form.parts) {
            if (const auto* declared = std::get_if<DeclaredGrid>(&part)) {
                const GridSource grid = declared->grid();
                grid.save(grid.load(hub.files, hub.profiles), hub.files, hub.profiles);
            }
        }
    }
    for (const ArchiveMember& member : archiveMembers())
        saveLinkOfTheWeek(member, restoredLinkOfTheWeek(), hub.files);
    savePortalSettings(hub.files, loadPortalSettings(hub.files));
}

TEST(HubScript, LoadsEveryTableOfASavedTreeButThoseThatAreKnownNotTo)
{
    test::Hub hub;
    hub.store.files["/hub/cfg/Profiles.xml"] = "<Name>Master</Name>\r\n<Name>Reg</Name>\r\n";
    test::buildTree(hub);
    hub.store.folders.insert(hub.root + "/Communication/Portal");
    saveWhatWontLoad(hub);
    std::map<std::string, std::string> failing;
    for (const auto& [path, bytes] : hub.store.files) {
        const auto reading = lua::readTables(bytes, lua::Version::Lua51);
        if (path.ends_with(".tbl") && !reading.loads())
            failing[path.substr(hub.root.size() + 1)] = lua::words(reading.fault);
    }
    std::map<std::string, std::string> known;
    for (const NotLoading* files : {&notLoading(), &notLoadingOnceSaved()}) {
        for (const auto& [path, fault] : *files)
            known[path] = lua::words(fault);
    }
    EXPECT_EQ(failing, known);
}

class TreeOfAHub : public testing::TestWithParam<int>
{
protected:
    TreeOfAHub()
    {
        std::string& bytes = hub.store.files["/hub/cfg/Profiles.xml"];
        for (int profile = 0; profile < GetParam(); ++profile)
            bytes += "<Name>P" + std::to_string(profile) + "</Name>\r\n";
        test::buildTree(hub);
    }

    /// Holds the reader to what both Luas say of each file.
    void expectTheSameOfEachFile() const
    {
        for (const auto& [path, bytes] : hub.store.files) {
            if (!path.ends_with(".tbl"))
                continue;
            const auto in51 = lua::readTables(bytes, lua::Version::Lua51);
            const auto in53 = lua::readTables(bytes, lua::Version::Lua53);
            EXPECT_EQ(in51.loads(), !test::lua51Refusal(bytes)) << path;
            EXPECT_EQ(in53.loads(), !test::lua53Refusal(bytes)) << path;
            EXPECT_TRUE(in51.notes.empty()) << path << ':' << in51.notes.front().line;
            const auto known = notLoading().find(path.substr(hub.root.size() + 1));
            EXPECT_EQ(words(in51.fault), known == notLoading().end() ? "" : words(known->second)) << path;
        }
    }

    test::Hub hub;
};

INSTANTIATE_TEST_SUITE_P(Profiles, TreeOfAHub, testing::Values(1, 5, 64),
                         [](const auto& each) { return "Of" + std::to_string(each.param); });

TEST_P(TreeOfAHub, IsReadAsBothLuasReadIt)
{
    expectTheSameOfEachFile();
    test::buildTree(hub, "5.3.0");
    expectTheSameOfEachFile();
}

TEST(HubScript, SeesTheGeneralSettings)
{
    EXPECT_EQ(luaValues(test::golden("general/GeneralSettings.build.tbl")),
              (LuaValues{{"tGeneralSettings.bAllowAllPrefixes", "1"},
                         {"tGeneralSettings.bFlatRC", "0"},
                         {"tGeneralSettings.bUnregRCEnable", "1"},
                         {"tGeneralSettings.sBorder", "\xBB\xAB"},
                         {"tGeneralSettings.sPrefix", "+"},
                         {"tGeneralSettings.sRightClickName", ""}}));
    EXPECT_EQ(luaValues(test::golden("general/GeneralSettings.save.tbl")),
              (LuaValues{{"tGeneralSettings.bAllowAllPrefixes", "0"},
                         {"tGeneralSettings.bFlatRC", "1"},
                         {"tGeneralSettings.bUnregRCEnable", "1"},
                         {"tGeneralSettings.sBorder", "<<>>"},
                         {"tGeneralSettings.sPrefix", "\xA3"},
                         {"tGeneralSettings.sRightClickName", "Quill"}}));
}

TEST(HubScript, SeesEachSwitch)
{
    for (const auto& [file, table] :
         {std::pair("Switches", "tSwitches"), {"EnabledRightClicks", "tEnabledRightClicks"}}) {
        const auto built = luaValues(test::golden(std::string("general/") + file + ".build.tbl"));
        const auto saved = luaValues(test::golden(std::string("general/") + file + ".save.tbl"));
        EXPECT_EQ(built.size(), 56U);
        for (const SwitchedFunction& function : switchedFunctions()) {
            const std::string key = std::string(table) + ".b" + std::string(function.name);
            EXPECT_EQ(built.at(key), function.on ? "1" : "0") << key;
            EXPECT_EQ(saved.at(key), function.name == "Mute" ? "0" : "1") << key;
        }
    }
}

TEST(HubScript, DoesNotLoadATextThatHoldsAQuote)
{
    EXPECT_THROW(luaValues("t = {\r\n\tsText = \"a\"b\",\r\n}\r\n"), std::runtime_error);
}

} // namespace
} // namespace quillfen
