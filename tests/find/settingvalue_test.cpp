#include "find/settingvalue.h"
#include "settings/profiles.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using ShownEntries = std::vector<std::string_view>;

class ShownValues : public testing::Test
{
protected:
    ShownValues()
    {
        profiles.add("Master");
        profiles.add("VIP");
    }

    std::string shown(const setting::Field& field, const std::string& stored) const
    {
        return shownValue(field, {{field.key, stored}}, profiles);
    }

    HubProfiles profiles;
    const setting::Field flag = setting::flag("b", "chk", "Flag", false);
    const setting::Field options = setting::options("i", "opt", "Options", 0, 3, {"One", "Two"});
    const setting::Field letter = setting::letter("s", "cbo", "Letter", "Kick", {"Kick", "Ban"});
    const setting::Field profile = setting::profileKey("i", "cbo", "Profile");
};

TEST_F(ShownValues, AreTheWordsOfWhatIsStored)
{
    EXPECT_EQ(shown(flag, "1"), "on");
    EXPECT_EQ(shown(flag, "0"), "off");
    EXPECT_EQ(shown(options, "1"), "Two");
    EXPECT_EQ(shown(options, ""), "One");
    EXPECT_EQ(shown(letter, "B"), "Ban");
    EXPECT_EQ(shown(profile, "0"), "Master");
    EXPECT_EQ(shown(profile, "1"), "VIP");
    EXPECT_EQ(shown(setting::text("s", "txt", "Text", ""), "as it is"), "as it is");
    EXPECT_EQ(shownValue(flag, {}, profiles), "off");
}

TEST_F(ShownValues, AreWhatIsStoredWhereItHasNoWord)
{
    EXPECT_EQ(shown(options, "2"), "2");
    EXPECT_EQ(shown(options, "-1"), "-1");
    EXPECT_EQ(shown(letter, "x"), "x");
    EXPECT_EQ(shown(profile, "2"), "2");
}

TEST_F(ShownValues, OfTicksAreRows)
{
    const setting::Field ticks = setting::profileFlags("t", "lvw", "Ticks");
    SettingValues values = {{profileRow("t", 0), "0"}, {profileRow("t", 1), "1"}, {profileRow("t", 2), "0"}};
    auto rows = shownRows(ticks, values, profiles);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].text, "Unregistered");
    EXPECT_FALSE(rows[0].checked);
    EXPECT_EQ(rows[1].text, "Master");
    EXPECT_TRUE(rows[1].checked);
    values = {{flagRow("t", "Fast"), "1"}, {flagRow("t", "Slow"), "0"}};
    rows = shownRows(setting::namedFlags("t", "lvw", "Names", {"Fast", "Slow"}), values, profiles);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].text, "Fast");
    EXPECT_TRUE(rows[0].checked);
    EXPECT_FALSE(rows[1].checked);
    EXPECT_TRUE(shownRows(flag, {{"b", "1"}}, profiles).empty());
}

TEST_F(ShownValues, HaveTheOtherEntriesBesideThem)
{
    EXPECT_EQ(entriesOf(options, profiles), (ShownEntries{"One", "Two"}));
    EXPECT_EQ(entriesOf(letter, profiles), (ShownEntries{"Kick", "Ban"}));
    EXPECT_EQ(entriesOf(profile, profiles), (ShownEntries{"Master", "VIP"}));
    EXPECT_EQ(entriesOf(setting::entry("s", "cbo", "Entry", "a", {"a", "b"}), profiles),
              (ShownEntries{"a", "b"}));
    EXPECT_TRUE(entriesOf(flag, profiles).empty());
}

TEST_F(ShownValues, StandInTheButtonThatIsChosen)
{
    EXPECT_EQ(shownControl(options, {{"i", "1"}}), "opt(4)");
    EXPECT_EQ(shownControl(options, {}), "opt(3)");
    EXPECT_EQ(shownControl(options, {{"i", "7"}}), "opt(3)");
    EXPECT_EQ(shownControl(flag, {{"b", "1"}}), "chk");
}

} // namespace
} // namespace quillfen
