#include "functions/security/securityformtest.h"

namespace quillfen {
namespace {

using test::sameBytes;

class PtokaXForm : public test::SecurityForms
{
};

TEST_F(PtokaXForm, SavesAndRestoresBothLists)
{
    auto& form = open("Security~PtokaXSettings");
    EXPECT_EQ(form.objectName(), "frmSecurityPtokaXSettings");
    EXPECT_EQ(form.windowTitle(), "Security~ PtokaXSettings") << "the blank stands behind the tilde only";
    EXPECT_EQ(text(form, "lblLabel(0)"), "Enabled Get Profiles");
    EXPECT_EQ(text(form, "lblLabel(1)"), "Enabled Set Profiles");
    tick(form, "lvwEnabledGetProfiles", {0, 1, 2});
    tick(form, "lvwEnabledSetProfiles", {1});
    save(form);
    EXPECT_TRUE(sameBytes(file("PtokaX/PtokaXSettings.tbl"), golden("PtokaX.save.tbl")));
    restore(form);
    EXPECT_EQ(ticks(form, "lvwEnabledGetProfiles"), "0000");
    EXPECT_EQ(ticks(form, "lvwEnabledSetProfiles"), "0000");
    discard(form);
    EXPECT_EQ(ticks(form, "lvwEnabledGetProfiles"), "1110");
}

} // namespace
} // namespace quillfen
