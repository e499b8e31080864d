#include "functions/security/flood.h"
#include "functions/security/securitytest.h"

namespace quillfen {
namespace {

using test::luaValues;
using test::sameBytes;

class Flood : public test::SecurityFiles
{
protected:
    std::string& settings = file("Flood/FloodSettings.tbl");
};

TEST_F(Flood, AFreshBuildAllowsNothing)
{
    buildFunction(floodFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("Flood.build.tbl")));
}

TEST_F(Flood, ARebuildKeepsEachValueAndGivesANewProfileNone)
{
    settings = golden("Flood.save.tbl");
    buildFunction(floodFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("Flood.save.tbl")));
    hub.profiles.add("Reg");
    buildFunction(floodFunction(), hub.files, hub.profiles);
    const auto values = luaValues(settings);
    EXPECT_EQ(values.size(), 25U);
    EXPECT_EQ(values.at("tFloodSettings.0.2"), "1");
    EXPECT_EQ(values.at("tFloodSettings.0.3"), "0");
    EXPECT_EQ(values.at("tFloodSettings.3.-1"), "0");
}

TEST_F(Flood, TheHubScriptSeesItsValues)
{
    const auto values = luaValues(golden("Flood.save.tbl"));
    EXPECT_EQ(values.size(), 16U);
    for (const auto& [key, value] : values) {
        const bool allowed =
            key == "tFloodSettings.0.-1" || key == "tFloodSettings.0.2" || key == "tFloodSettings.2.1";
        EXPECT_EQ(value, allowed ? "1" : "0") << key;
    }
}

} // namespace
} // namespace quillfen
