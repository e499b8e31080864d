#include "functions/customise/customiseformtest.h"

namespace quillfen {
namespace {

using test::sameBytes;

class HideShareForm : public test::CustomiseForms
{
protected:
    std::string& settings = file("HideShare/HideShareSettings.tbl");
};

TEST_F(HideShareForm, HasItsProfilesOnly)
{
    auto& form = open("CustomiseUser~HideShare");
    EXPECT_EQ(form.objectName(), "frmCustomiseUserHideShare");
    EXPECT_EQ(form.windowTitle(), "CustomiseUser ~ HideShare");
    EXPECT_EQ(text(form, "lblLabel(0)"), "Enabled Profiles");
    EXPECT_EQ(columns(find<RowList>(form, "lvwEnabledProfiles")), QStringList("Enabled Profiles"));
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
    EXPECT_FALSE(isDirty(form));
    tick(form, "lvwEnabledProfiles", {0, 3});
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("HideShareSettings.save.tbl")));
}

TEST_F(HideShareForm, ARestoreUnticksEveryRow)
{
    settings = golden("HideShareSettings.save.tbl");
    auto& form = open("CustomiseUser~HideShare");
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "1001");
    restore(form);
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("HideShareSettings.build.tbl")));
}

TEST_F(HideShareForm, FiveProfilesAreFiveRowsBehindTheUnregistered)
{
    hub.profiles.add("Reg");
    hub.profiles.add("Guest");
    auto& form = open("CustomiseUser~HideShare");
    tick(form, "lvwEnabledProfiles", {5});
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "000001");
    save(form);
    EXPECT_EQ(test::luaValues(settings).at("tHideShareSettings.tEnabledProfiles.4"), "1");
}

} // namespace
} // namespace quillfen
