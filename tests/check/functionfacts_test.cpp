#include "check/functionfacts.h"
#include "functions/catalogue.h"
#include "functions/general/switches.h"

#include <gtest/gtest.h>
#include <set>

namespace quillfen {
namespace {

TEST(FunctionFacts, KnowWhichFilesARebuildMakes)
{
    const FunctionFacts facts = functionFacts();
    EXPECT_TRUE(facts.isBuilt(R"(Security\Kick\KickSettings.tbl)"));
    EXPECT_TRUE(facts.isBuilt(R"(Security\Kick\KickCanBan.tbl)"));
    EXPECT_FALSE(facts.isBuilt(R"(Security\Kick\KickCanTimeBan.tbl)")) << "no rebuild makes that one";
    EXPECT_FALSE(facts.isBuilt({}));
}

TEST(FunctionFacts, KnowTheSwitchOfAForm)
{
    const FunctionFacts facts = functionFacts();
    EXPECT_EQ(facts.switchOf("frmSecurityKickPermissions"), "Kicks");
    EXPECT_EQ(facts.switchOf("frmGeneralGeneral"), "");
    EXPECT_EQ(facts.switchOf("frmNone"), "");
}

TEST(Switches, EachBelongsToANode)
{
    std::set<std::string_view> reached;
    for (const Node& node : functionNodes())
        reached.insert(switchOf(node.key));
    for (const SwitchedFunction& function : switchedFunctions())
        EXPECT_EQ(reached.count(function.name), 1U) << function.name;
}

} // namespace
} // namespace quillfen
