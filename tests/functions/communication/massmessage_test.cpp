#include "functions/communication/massmessage.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::luaValues;
using test::sameBytes;

class MassMessages : public testing::Test
{
protected:
    MassMessages()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    test::Hub hub{"Communication", "Communication/MassMessage"};
    const std::string folder = "Communication/MassMessage/";
    const std::string settings = folder + "MassMessageSettings.tbl";
};

TEST_F(MassMessages, AFreshBuildAllowsNothingAndHasAnEmptyImmuneListAndNoPassiveText)
{
    buildFunction(massMessageFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(settings), golden("communication/MassMessageSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(hub.file(folder + "MassMessagePassiveImmune.tbl"),
                          "tMassMessagePassiveImmune = {\r\n}\r\n"));
    EXPECT_FALSE(hub.has(folder + "Passive.asc"));
    const auto values = luaValues(hub.file(settings));
    EXPECT_EQ(values.at("tMassMessageSettings.-1.Operator"), "0");
    EXPECT_EQ(values.size(), 4U + 4U * 8U);
}

TEST_F(MassMessages, ARebuildAfterASaveDropsTheQuotesAndPutsTheOperatorBackWithZero)
{
    hub.file(settings) = golden("communication/MassMessageSettings.save.tbl");
    hub.file(folder + "MassMessagePassiveImmune.tbl") = "mine";
    buildFunction(massMessageFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(settings), golden("communication/MassMessageSettings.rebuild.tbl")));
    EXPECT_EQ(hub.file(folder + "MassMessagePassiveImmune.tbl"), "mine");
    const auto values = luaValues(hub.file(settings));
    EXPECT_EQ(values.at("tMassMessageSettings.0.Banner"), "1");
    EXPECT_EQ(values.at("tMassMessageSettings.2.All"), "1");
}

TEST_F(MassMessages, AreOneCommandToEachTargetFromEachProfile)
{
    const auto cells = loadMassMessage(hub.files, hub.profiles).cells;
    ASSERT_EQ(cells.size(), 4U * (4U + massMessageTargets().size()));
    EXPECT_EQ(cells.front().by, 0U);
    for (const PermissionCell& cell : cells)
        EXPECT_EQ(cell.command, 0U);
}

TEST_F(MassMessages, ARebuildKeepsAnOperatorThatIsThere)
{
    hub.profiles = {};
    hub.file(settings) =
        "tMassMessageSettings = {\r\n\ttEnabledPassiveProfiles = {\r\n\t\t[-1] = 0,\r\n\t},\r\n"
        "\t[-1] = {\r\n\t\t[-1] = 1,\r\n\t\tOperator = 1,\r\n\t},\r\n}\r\n";
    buildFunction(massMessageFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(
        hub.file(settings),
        "tMassMessageSettings = {\r\n\ttEnabledPassiveProfiles = {\r\n\t\t[-1] = 0,\r\n\t},\r\n\t[-1] = {\r\n"
        "\t\t[-1] = 1,\r\n\t\tBanner = 0,\r\n\t\tAll = 0,\r\n\t\tPassive = 0,\r\n\t\tOperator = "
        "1,\r\n\t},\r\n"
        "}\r\n"));
}

TEST_F(MassMessages, ANewProfileJoinsWithZerosAndTheOthersKeepTheirCells)
{
    hub.file(settings) = golden("communication/MassMessageSettings.save.tbl");
    hub.profiles.add("Newcomer");
    buildFunction(massMessageFunction(), hub.files, hub.profiles);
    const auto values = luaValues(hub.file(settings));
    EXPECT_EQ(values.at("tMassMessageSettings.-1.0"), "1");
    EXPECT_EQ(values.at("tMassMessageSettings.1.2"), "1");
    int ones = 0;
    for (const auto& [key, value] : values)
        ones += value == "1" ? 1 : 0;
    EXPECT_EQ(ones, 2 + 4); // two immune profiles, four cells, and none for the new one
    EXPECT_EQ(values.size(), 5U + 5U * 9U);
}

} // namespace
} // namespace quillfen
