#include "functions/security/securityformtest.h"
#include "support/dialogs.h"

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::sameBytes;
using test::SeenDialog;

class SpyForms : public test::SecurityForms
{
protected:
    std::string& terms = file("SearchSpy/SearchSpyFiles.tbl");

    static RowList& files(EditorForm& form) { return find<RowList>(form, "lvwFiles"); }
};

TEST_F(SpyForms, TheCommandSpySavesAndRestoresItsList)
{
    auto& form = open("Security~CommandSpy");
    EXPECT_EQ(form.objectName(), "frmSecurityCommandSpy");
    EXPECT_EQ(form.windowTitle(), "Security ~ CommandSpy");
    EXPECT_EQ(text(form, "lblLabel(0)"), "Enabled Profiles");
    tick(form, "lvwEnabledProfiles", {1, 3});
    save(form);
    EXPECT_TRUE(sameBytes(file("CommandSpy/CommandSpySettings.tbl"), golden("CommandSpy.save.tbl")));
    restore(form);
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
}

TEST_F(SpyForms, TheSearchSpySavesBothFiles)
{
    auto& form = open("Security~SearchSpy");
    EXPECT_EQ(form.objectName(), "frmSecuritySearchSpy");
    EXPECT_EQ(form.windowTitle(), "Security ~ SearchSpy");
    EXPECT_EQ(text(form, "lblLabel(0)"), "Enabled Profiles");
    EXPECT_EQ(text(form, "lblLabel(1)"), "Immune Profiles");
    EXPECT_EQ(labelOf(form, "lvwFiles"), "Forbidden Files");
    EXPECT_EQ(offered([&form] { button(form, "NEW", "tlbFiles").trigger(); }),
              (QStringList{"Disconnect", "Warn", "Notify Ops", "Kick", "Ban"}));
    tick(form, "lvwAllowedProfiles", {3});
    tick(form, "lvwImmuneProfiles", {0});
    auto seen = entering({{{"bad film"}, "cmdAdd"}, {{"worse", "Ban"}, "cmdAdd"}, {{"worst", "Warn"}}},
                         [&form] { button(form, "NEW", "tlbFiles").trigger(); });
    ASSERT_EQ(seen.size(), 3);
    EXPECT_EQ(seen[1], (SeenDialog{"frmGlobalEditTextCombo", "Add File", {"File", "Action"}, {"", "Kick"}}));
    clickRow(files(form), 2);
    seen = entering({{{QString(), "Notify Ops"}}}, [&form] { doubleClickRow(files(form), 2); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(
        seen[0],
        (SeenDialog{"frmGlobalEditTextCombo", "Edit File", {"worst File", "Action"}, {"worst", "Warn"}}));
    EXPECT_EQ(shown(files(form)), (QStringList{"bad film|Kick", "worse|Ban", "worst|Notify Ops"}));
    save(form);
    EXPECT_TRUE(sameBytes(file("SearchSpy/SearchSpySettings.tbl"), golden("SearchSpy.save.tbl")));
    EXPECT_TRUE(sameBytes(terms, golden("SearchSpyFiles.save.tbl")));
}

TEST_F(SpyForms, ANewTermNeedsItsTextAndAnEditedOneItsAction)
{
    terms = "tSearchSpyFiles = {\r\n\t[\"a\"] = \"T\",\r\n}\r\n";
    auto& form = open("Security~SearchSpy");
    auto seen = entering({{{"", "Ban"}, "cmdAdd"}, {{}, "cmdOK"}, {{"b"}}},
                         [&form] { button(form, "NEW", "tlbFiles").trigger(); });
    ASSERT_EQ(seen.size(), 3);
    EXPECT_EQ(seen[1].values, (QStringList{"", "Ban"})) << "the same dialog stays";
    EXPECT_EQ(seen[2].values, (QStringList{"", "Ban"}));
    clickRow(files(form), 0);
    seen =
        entering({{{"c"}}, {{QString(), "Warn"}}}, [&form] { button(form, "EDIT", "tlbFiles").trigger(); });
    ASSERT_EQ(seen.size(), 2);
    EXPECT_EQ(seen[1].values, (QStringList{"c", ""}));
    EXPECT_EQ(shown(files(form)), (QStringList{"c|Warn", "b|Ban"}));
}

TEST_F(SpyForms, ARestoreOfTheSearchSpyUnticksBothListsAndLeavesTheTerms)
{
    file("SearchSpy/SearchSpySettings.tbl") = golden("SearchSpy.save.tbl");
    terms = golden("SearchSpyFiles.save.tbl");
    auto& form = open("Security~SearchSpy");
    EXPECT_EQ(ticks(form, "lvwAllowedProfiles"), "0001");
    restore(form);
    EXPECT_EQ(ticks(form, "lvwAllowedProfiles"), "0000");
    EXPECT_EQ(ticks(form, "lvwImmuneProfiles"), "0000");
    EXPECT_EQ(files(form).rows().size(), 3U);
}

TEST_F(SpyForms, ADeleteIsWordedAsThatOfTheIntrosAndTheLastTermStays)
{
    terms = "tSearchSpyFiles = {\r\n\t[\"a\"] = \"K\",\r\n\t[\"b\"] = \"B\",\r\n}\r\n";
    auto& form = open("Security~SearchSpy");
    clickRow(files(form), 0);
    auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbFiles").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Intro?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this File?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    clickRow(files(form), 0);
    boxes = answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbFiles").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_EQ(boxes[0].text, "There must be a minimum of one File");
    EXPECT_EQ(shown(files(form)), QStringList{"b|Ban"});
}

} // namespace
} // namespace quillfen
