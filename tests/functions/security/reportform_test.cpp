#include "functions/security/securityformtest.h"

namespace quillfen {
namespace {

using test::sameBytes;

class ReportForm : public test::SecurityForms
{
};

TEST_F(ReportForm, SavesAndRestoresItsList)
{
    auto& form = open("Security~Report");
    EXPECT_EQ(form.objectName(), "frmSecurityReport");
    EXPECT_EQ(form.windowTitle(), "Security ~ Report");
    EXPECT_EQ(text(form, "lblLabel(0)"), "Enabled Profiles");
    tick(form, "lvwEnabledProfiles", {1, 2});
    save(form);
    EXPECT_TRUE(sameBytes(file("Report/ReportSettings.tbl"), golden("Report.save.tbl")));
    restore(form);
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
    discard(form);
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0110");
}

} // namespace
} // namespace quillfen
