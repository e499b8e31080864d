#include "functions/useractions/ascii.h"
#include "functions/useractions/calculator.h"
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

class Ascii : public testing::Test
{
protected:
    Ascii()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    test::Hub hub{"UserActions/Ascii", "UserActions/Ascii/Ascii", "UserActions/Calculator"};
    std::string& settings = hub.file("UserActions/Ascii/AsciiSettings.tbl");
    std::string& calculator = hub.file("UserActions/Calculator/CalculatorSettings.tbl");
};

TEST_F(Ascii, AFreshBuildWritesTheRightClicksBeforeTheProfilesAndAnEmptyIndex)
{
    buildFunction(asciiFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("useractions/AsciiSettings.build.tbl")));
    EXPECT_TRUE(
        sameBytes(hub.file("UserActions/Ascii/AsciiIndex.tbl"), golden("useractions/AsciiIndex.build.tbl")));
}

TEST_F(Ascii, ARebuildKeepsValuesAndTheIndexAndPutsTheRightClicksFirst)
{
    settings = golden("useractions/AsciiSettings.save.tbl");
    hub.file("UserActions/Ascii/AsciiIndex.tbl") = "the owner's";
    buildFunction(asciiFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings,
                          "tAsciiSettings = {\r\n\tbInMain = 0,\r\n\tbInMainGlobal = 1,\r\n"
                          "\tbEnableNoCommand = 0,\r\n\ttEnabledRC = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n"
                          "\t\t[1] = 0,\r\n\t\t[2] = 1,\r\n\t},\r\n\ttEnabledProfiles = {\r\n"
                          "\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t\t[1] = 0,\r\n\t\t[2] = 0,\r\n\t},\r\n}\r\n"));
    EXPECT_EQ(hub.file("UserActions/Ascii/AsciiIndex.tbl"), "the owner's");
}

TEST_F(Ascii, TheIndexIsReadUpToTheFirstMissingTable)
{
    hub.file("UserActions/Ascii/AsciiIndex.tbl") =
        "tAsciiIndex = {\r\n\t[1] = {\r\n\t\tsFilename = \"a\",\r\n\t\tsDisplayName = \"A = 1\",\r\n"
        "\t\tsMenu = \"M\",\r\n\t},\r\n\t[3] = {\r\n\t\tsFilename = \"c\",\r\n\t},\r\n}\r\n";
    EXPECT_EQ(asciiPictures().load(hub.files, hub.profiles), (std::vector<CellRow>{{{"a", "A = 1", "M"}}}));
}

TEST_F(Ascii, AnEmptyIndexIsItsOpeningLineAndItsBrace)
{
    asciiPictures().save(hub.files, hub.profiles, {});
    EXPECT_EQ(hub.file("UserActions/Ascii/AsciiIndex.tbl"), "tAsciiIndex = {\r\n}\r\n");
}

TEST_F(Ascii, TheCalculatorIsBuiltWithNobodyAndKeepsWhoMayCalculate)
{
    buildFunction(calculatorFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(calculator, golden("useractions/CalculatorSettings.build.tbl")));
    calculator = golden("useractions/CalculatorSettings.save.tbl");
    hub.profiles.add("Reg");
    buildFunction(calculatorFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(calculator, "tCalculatorSettings = {\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n"
                                      "\t\t[0] = 1,\r\n\t\t[1] = 0,\r\n\t\t[2] = 1,\r\n\t\t[3] = 0,\r\n"
                                      "\t},\r\n}\r\n"));
}

TEST(HubScriptAscii, SeesWhatIsBuiltAndSaved)
{
    const auto saved = luaValues(golden("useractions/AsciiSettings.save.tbl"));
    EXPECT_EQ(saved.at("tAsciiSettings.bInMain"), "0");
    EXPECT_EQ(saved.at("tAsciiSettings.bInMainGlobal"), "1");
    EXPECT_EQ(saved.at("tAsciiSettings.tEnabledProfiles.0"), "1");
    EXPECT_EQ(saved.at("tAsciiSettings.tEnabledRC.-1"), "1");
    EXPECT_EQ(luaValues(golden("useractions/AsciiSettings.build.tbl")).size(), 11U);
    EXPECT_EQ(luaValues(golden("useractions/AsciiIndex.build.tbl")), (LuaValues{{"tAsciiIndex", "{}"}}));
    EXPECT_EQ(luaValues(golden("useractions/AsciiIndex.save.tbl")),
              (LuaValues{{"tAsciiIndex.1.sFilename", "owl"},
                         {"tAsciiIndex.1.sDisplayName", "Old Owl"},
                         {"tAsciiIndex.1.sMenu", "Birds"},
                         {"tAsciiIndex.2.sFilename", "cat"},
                         {"tAsciiIndex.2.sDisplayName", "Cat"},
                         {"tAsciiIndex.2.sMenu", "Beasts"}}));
    EXPECT_EQ(luaValues(golden("useractions/CalculatorSettings.save.tbl")),
              (LuaValues{{"tCalculatorSettings.tEnabledProfiles.-1", "0"},
                         {"tCalculatorSettings.tEnabledProfiles.0", "1"},
                         {"tCalculatorSettings.tEnabledProfiles.1", "0"},
                         {"tCalculatorSettings.tEnabledProfiles.2", "1"}}));
}

} // namespace
} // namespace quillfen
