#include "functions/customise/customisetest.h"
#include "functions/customise/hideshare.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class HideShare : public test::CustomiseFiles
{
protected:
    std::string& settings = file("HideShare/HideShareSettings.tbl");
};

TEST_F(HideShare, AFreshBuildHidesNobodysShare)
{
    buildFunction(hideShareFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, golden("HideShareSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(file("HideShare/HideShareUsers.tbl"), "tHideShareUsers = {\r\n}\r\n"));
}

TEST_F(HideShare, ARebuildKeepsValuesGivesANewProfileZeroAndLeavesTheUsers)
{
    settings = golden("HideShareSettings.save.tbl");
    file("HideShare/HideShareUsers.tbl") = "the script's";
    hub.profiles.add("Reg");
    buildFunction(hideShareFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(settings, "tHideShareSettings = {\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 1,\r\n"
                                    "\t\t[0] = 0,\r\n\t\t[1] = 0,\r\n\t\t[2] = 1,\r\n\t\t[3] = 0,\r\n"
                                    "\t},\r\n}\r\n"));
    EXPECT_EQ(file("HideShare/HideShareUsers.tbl"), "the script's");
}

TEST_F(HideShare, TheHubScriptSeesWhatIsSaved)
{
    EXPECT_EQ(luaValues(golden("HideShareSettings.save.tbl")),
              (LuaValues{{"tHideShareSettings.tEnabledProfiles.-1", "1"},
                         {"tHideShareSettings.tEnabledProfiles.0", "0"},
                         {"tHideShareSettings.tEnabledProfiles.1", "0"},
                         {"tHideShareSettings.tEnabledProfiles.2", "1"}}));
}

} // namespace
} // namespace quillfen
