#include "functions/security/ptokax.h"
#include "functions/security/securitytest.h"

namespace quillfen {
namespace {

using test::luaValues;
using test::sameBytes;

class PtokaX : public test::SecurityFiles
{
protected:
    std::string& settings = file("PtokaX/PtokaXSettings.tbl");
};

TEST_F(PtokaX, AFreshBuildTicksNoProfile)
{
    buildFunction(ptokaXSettingsFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("PtokaX.build.tbl")));
}

TEST_F(PtokaX, ARebuildKeepsWhatTheFormSaved)
{
    settings = golden("PtokaX.save.tbl");
    buildFunction(ptokaXSettingsFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("PtokaX.save.tbl")));
}

TEST_F(PtokaX, TheHubScriptSeesItsValues)
{
    const auto values = luaValues(golden("PtokaX.save.tbl"));
    EXPECT_EQ(values.size(), 8U);
    EXPECT_EQ(values.at("tPtokaXSettings.tEnabledGetProfiles.-1"), "1");
    EXPECT_EQ(values.at("tPtokaXSettings.tEnabledSetProfiles.1"), "0");
}

} // namespace
} // namespace quillfen
