#include "functions/general/settings.h"
#include "functions/general/switches.h"
#include "settings/listfile.h"
#include "support/golden.h"
#include "support/hub.h"

#include <gtest/gtest.h>
#include <set>

namespace quillfen {
namespace {

using test::golden;
using test::sameBytes;

class General : public testing::Test
{
protected:
    test::Hub hub{"General", "General/Globals"};
    std::string& settings = hub.file("General/Globals/GeneralSettings.tbl");
    std::string& switches = hub.file("General/Globals/Switches.tbl");
    std::string& rightClicks = hub.file("General/Globals/EnabledRightClicks.tbl");
};

TEST_F(General, AFreshBuildWritesTheDefaultsInItsOwnOrder)
{
    buildFunction(generalSettingsFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("general/GeneralSettings.build.tbl")));
}

TEST_F(General, ARebuildKeepsWhatTheFormSavedButForAnEmptiedBorder)
{
    settings =
        "tGeneralSettings = {\r\n\tbAllowAllPrefixes = 0,\r\n\tbFlatRC = 1,\r\n\tbUnregRCEnable = 0,\r\n"
        "\tsBorder = \"\",\r\n\tsRightClickName = \"My menu\",\r\n\tsPrefix = \"%\",\r\n}\r\n";
    buildFunction(generalSettingsFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings,
                          "tGeneralSettings = {\r\n\tbAllowAllPrefixes = 0,\r\n\tsPrefix = \"%\",\r\n"
                          "\tsRightClickName = \"My menu\",\r\n\tsBorder = \"\xBB\xAB\",\r\n"
                          "\tbFlatRC = 1,\r\n\tbUnregRCEnable = 0,\r\n}\r\n"));
}

TEST_F(General, OfferNinePrefixes)
{
    std::vector<std::string> prefixes;
    for (const Setting& each : generalSettings().settings) {
        const auto* const field = std::get_if<setting::Field>(&each);
        if (field && field->key == "sPrefix")
            prefixes = std::get<setting::Entry>(field->kind).entries;
    }
    EXPECT_EQ(prefixes, (std::vector<std::string>{"+", "-", "!", "#", "$", "\xA3", "?", "~", "="}));
}

TEST_F(General, AFreshBuildOfTheSwitchesHasAllOnButTwo)
{
    buildFunction(switchesFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(switches, golden("general/Switches.build.tbl")));
    EXPECT_TRUE(sameBytes(rightClicks, golden("general/EnabledRightClicks.build.tbl")));
}

TEST_F(General, ARebuildResetsEverySwitchAndRemovesThePortals)
{
    switches = "tSwitches = {\r\n\tbPortal = 1,\r\n\tbTopicChanger = 1,\r\n\tbMute = 0,\r\n}\r\n";
    rightClicks = "tEnabledRightClicks = {\r\n\tbTopicChanger = 1,\r\n}\r\n";
    buildFunction(switchesFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(switches, golden("general/Switches.build.tbl")));
    EXPECT_TRUE(sameBytes(rightClicks, golden("general/EnabledRightClicks.build.tbl")));
}

TEST_F(General, SwitchesShowWithoutTheirLetterAndAreSavedWithIt)
{
    switches = "tSwitches = {\r\n\tbAnagrams = 1,\r\n\tbMute = 0,\r\n\tbPortal = 1,\r\n}\r\n";
    const auto rows = loadList(hub.files, switchesFile());
    EXPECT_EQ(rows,
              (std::vector<ListRow>{{"Anagrams", "", true}, {"Mute", "", false}, {"Portal", "", true}}));
    saveList(hub.files, switchesFile(), rows);
    EXPECT_TRUE(
        sameBytes(switches, "tSwitches = {\r\n\tbAnagrams = 1,\r\n\tbMute = 0,\r\n\tbPortal = 1,\r\n}\r\n"));
}

TEST_F(General, EachFunctionHasAHelpTextOfItsOwn)
{
    std::set<std::string_view> helps;
    for (const SwitchedFunction& function : switchedFunctions()) {
        EXPECT_GT(function.help.size(), 15U) << function.name;
        EXPECT_TRUE(function.help.front() >= 'A' && function.help.front() <= 'Z') << function.help;
        EXPECT_TRUE(helps.insert(function.help).second) << function.name;
        EXPECT_EQ(switchHelp(function.name), function.help);
    }
    EXPECT_EQ(helps.size(), 56U);
    EXPECT_EQ(switchHelp("Mute"), "Allows users to be muted");
    EXPECT_EQ(switchHelp("TopicChanger"), "Changes hub topic on a timer");
    EXPECT_EQ(switchHelp("KickBarChanger"), "Displays message in Kick Bar on a timer");
    EXPECT_EQ(switchHelp("Portal"), "");
}

} // namespace
} // namespace quillfen
