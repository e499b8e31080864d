// What the hub script sees: every file of the tree, loaded by Lua 5.1.
#include "declarations/rebuild.h"
#include "functions/catalogue.h"
#include "functions/general/settings.h"
#include "functions/general/switches.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"
#include "support/notloading.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;

TEST(HubScript, LoadsEveryTableOfAFreshTreeButThoseThatAreKnownNotTo)
{
    test::Hub hub;
    hub.store.files["/hub/cfg/Profiles.xml"] = "<Name>Master</Name>\r\n<Name>Reg</Name>\r\n";
    reconcileSettings({hub.files, folderCatalogue(), "5.2.0", [](const RebuildQuestion&) { return true; }},
                      hub.profiles);
    int loaded = 0;
    for (const auto& [path, bytes] : hub.store.files) {
        if (!path.ends_with(".tbl"))
            continue;
        ++loaded;
        const bool known = test::notLoading().contains(path.substr(hub.root.size() + 1));
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
