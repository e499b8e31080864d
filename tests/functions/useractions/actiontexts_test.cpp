#include "functions/useractions/actiontexts.h"
#include "support/freshtree.h"
#include "support/golden.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class ActionTexts : public testing::Test
{
protected:
    void build()
    {
        buildFunction(insultsFunction(), hub.files, hub.profiles);
        buildFunction(attacksFunction(), hub.files, hub.profiles);
        buildFunction(doActionsFunction(), hub.files, hub.profiles);
    }

    test::Hub hub{"UserActions/Insults", "UserActions/Attacks", "UserActions/DoAction"};
    const std::vector<std::pair<std::string, std::string>> files = {
        {"UserActions/Insults/Insults.tbl", "Insults"},
        {"UserActions/Insults/InsultsMedieval.tbl", "InsultsMedieval"},
        {"UserActions/Insults/InsultsModern.tbl", "InsultsModern"},
        {"UserActions/Attacks/Attacks.tbl", "Attacks"},
        {"UserActions/DoAction/DoAction.tbl", "DoAction"},
    };
};

TEST_F(ActionTexts, AFreshBuildWritesTheFirstTexts)
{
    build();
    for (const auto& [path, name] : files)
        EXPECT_TRUE(sameBytes(hub.file(path), golden("useractions/" + name + ".build.tbl"))) << path;
}

TEST_F(ActionTexts, ARebuildLeavesFilesThatExistAsTheyAre)
{
    for (const auto& [path, name] : files)
        hub.file(path) = "the owner's " + name;
    build();
    for (const auto& [path, name] : files)
        EXPECT_EQ(hub.file(path), "the owner's " + name);
}

TEST_F(ActionTexts, AFreshMedievalFileHasItsThirdTableMisspelled)
{
    build();
    EXPECT_NE(hub.file("UserActions/Insults/InsultsMedieval.tbl").find("\ttThreee = {\r\n"),
              std::string::npos);
    const auto& lists = medievalInsults().lists;
    EXPECT_EQ(lists[0].load(hub.files, hub.profiles), (std::vector<CellRow>{{{"artless"}}}));
    EXPECT_EQ(lists[1].load(hub.files, hub.profiles), (std::vector<CellRow>{{{"boil brained"}}}));
    EXPECT_TRUE(lists[2].load(hub.files, hub.profiles).empty());
}

TEST_F(ActionTexts, AreBuiltWithTheTree)
{
    test::Hub fresh;
    fresh.store.files["/hub/cfg/Profiles.xml"] = "<Name>Master</Name>\r\n";
    test::buildTree(fresh);
    for (const auto& [path, name] : files)
        EXPECT_TRUE(fresh.has(path)) << path;
}

TEST_F(ActionTexts, ATextThatHoldsAQuoteIsWrittenAsItStands)
{
    attacks().save(hub.files, hub.profiles, {{{"say \"ouch\" now"}}});
    EXPECT_EQ(hub.file("UserActions/Attacks/Attacks.tbl"),
              "tAttacks = {\r\n\t\"say \"ouch\" now\",\r\n}\r\n");
}

TEST(HubScriptActionTexts, SeesWhatIsBuiltAndSaved)
{
    EXPECT_EQ(luaValues(golden("useractions/Insults.build.tbl")),
              (LuaValues{{"tInsults.1", "*** !username! Says 'People can't say that !victim! has absolutely "
                                        "nothing! After all, they have inferiority!'"}}));
    EXPECT_EQ(
        luaValues(golden("useractions/Insults.save.tbl")),
        (LuaValues{{"tInsults.1", "!victim! smells"}, {"tInsults.2", "!victim! snores, says !username!"}}));
    EXPECT_EQ(luaValues(golden("useractions/Attacks.build.tbl")),
              (LuaValues{{"tAttacks.1", "*** !username! blows !victim!'s brains out"}}));
    EXPECT_EQ(luaValues(golden("useractions/Attacks.save.tbl")).at("tAttacks.2"), "!username! bites");
    EXPECT_EQ(luaValues(golden("useractions/DoAction.build.tbl")),
              (LuaValues{{"tDoAction.beer", "*** !username! drinks an ice cold beer"}}));
    EXPECT_EQ(luaValues(golden("useractions/DoAction.save.tbl")),
              (LuaValues{{"tDoAction.beer", "*** !username! drinks two beers"},
                         {"tDoAction.tea", "!username! drinks tea"}}));
    EXPECT_EQ(luaValues(golden("useractions/InsultsMedieval.build.tbl")),
              (LuaValues{{"tInsultsMedieval.tOne.1", "artless"},
                         {"tInsultsMedieval.tTwo.1", "boil brained"},
                         {"tInsultsMedieval.tThreee.1", "hedge-pig"}}));
    EXPECT_EQ(luaValues(golden("useractions/InsultsMedieval.save.tbl")),
              (LuaValues{{"tInsultsMedieval.tOne.1", "artless"},
                         {"tInsultsMedieval.tOne.2", "bawdy"},
                         {"tInsultsMedieval.tTwo.1", "beef-witted"},
                         {"tInsultsMedieval.tThree.1", "canker-blossom"}}));
    EXPECT_EQ(luaValues(golden("useractions/InsultsModern.build.tbl")),
              (LuaValues{{"tInsultsModern.tOne.1", "amorphous"},
                         {"tInsultsModern.tTwo.1", "blob of"},
                         {"tInsultsModern.tThree.1", "fly-covered"},
                         {"tInsultsModern.tFour.1", "kangaroo vomit"}}));
    EXPECT_EQ(luaValues(golden("useractions/InsultsModern.save.tbl")).at("tInsultsModern.tFour.2"),
              "old socks");
}

} // namespace
} // namespace quillfen
