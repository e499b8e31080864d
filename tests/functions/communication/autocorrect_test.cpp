#include "functions/communication/autocorrect.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class AutoCorrect : public testing::Test
{
protected:
    AutoCorrect()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    test::Hub hub{"Communication", "Communication/AutoCorrect"};
    const std::string folder = "Communication/AutoCorrect/AutoCorrect";
};

TEST_F(AutoCorrect, AFreshBuildHasTheDefaultsAndTwoEmptyLists)
{
    buildFunction(autoCorrectFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(
        sameBytes(hub.file(folder + "Settings.tbl"), golden("communication/AutoCorrectSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(hub.file(folder + "Words.tbl"), "tAutoCorrectWords = {\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(hub.file(folder + "Filters.tbl"), "tAutoCorrectFilters = {\r\n}\r\n"));
    const auto values = luaValues(hub.file(folder + "Settings.tbl"));
    EXPECT_EQ(values.at("tAutoCorrectSettings.bNotifyOps"), "1");
    EXPECT_EQ(values.at("tAutoCorrectSettings.tEnabledProfiles.-1"), "0");
    EXPECT_EQ(values.size(), 5U);
    EXPECT_EQ(luaValues(hub.file(folder + "Words.tbl")), (LuaValues{{"tAutoCorrectWords", "{}"}}));
}

TEST_F(AutoCorrect, ARebuildKeepsValuesAndLeavesTheListsAlone)
{
    hub.file(folder + "Settings.tbl") =
        "tAutoCorrectSettings = {\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 1,\r\n\t\t[1] = 1,\r\n\t},\r\n"
        "\tbNotifyOps = 0,\r\n}\r\n";
    hub.file(folder + "Words.tbl") = "mine";
    hub.file(folder + "Filters.tbl") = "also mine";
    buildFunction(autoCorrectFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(
        sameBytes(hub.file(folder + "Settings.tbl"), golden("communication/AutoCorrectSettings.save.tbl")));
    EXPECT_EQ(hub.file(folder + "Words.tbl"), "mine");
    EXPECT_EQ(hub.file(folder + "Filters.tbl"), "also mine");
}

} // namespace
} // namespace quillfen
