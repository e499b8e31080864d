#include "functions/customise/customiseformtest.h"
#include "support/freshtree.h"

namespace quillfen {
namespace {

using test::entering;
using test::luaValues;
using test::sameBytes;
using test::SeenDialog;

class DescriptionTagsForm : public test::CustomiseForms
{
protected:
    EditorForm& openForm() { return open("CustomiseUser~DescriptionTags"); }
    static RowList& tags(EditorForm& form) { return find<RowList>(form, "lvwDescriptionTags"); }

    std::string& settings = file("DescriptionTags/DescriptionTagSettings.tbl");
};

TEST_F(DescriptionTagsForm, OnAFreshTreeShowsEachProfilesNameInBrackets)
{
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmCustomiseUserDescriptionTags");
    EXPECT_EQ(form.windowTitle(), "CustomiseUser ~ DescriptionTags");
    EXPECT_EQ(find<RowList>(form, "lvwEnabledProfiles").accessibleName(), "Enabled Profiles");
    EXPECT_TRUE(labels(form).contains("Enabled Profiles"));
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
    EXPECT_EQ(columns(tags(form)), (QStringList{"Profile", "Tag"}));
    EXPECT_EQ(shown(tags(form)), (QStringList{"Unregistered|[Unregistered]", "Master|[Master]",
                                              "Operator|[Operator]", "VIP|[VIP]"}));
    const auto buttons = find<QToolBar>(form, "tlbListview").actions();
    ASSERT_EQ(buttons.size(), 1); // rows are neither added nor deleted
    EXPECT_EQ(buttons[0]->objectName(), "EDIT");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(DescriptionTagsForm, ASaveLosesTheFlagWhichTheNextRebuildWritesAgain)
{
    auto& form = openForm();
    tick(form, "lvwEnabledProfiles", {1, 2});
    tags(form).select(1);
    auto dialogs =
        entering({{{"[Boss]"}, "cmdOK"}}, [&form] { button(form, "EDIT", "tlbListview").trigger(); });
    EXPECT_EQ(dialogs,
              (QList<SeenDialog>{{"frmGlobalEditOneFields", "Edit File", {"Master Tag"}, {"[Master]"}}}));
    dialogs = entering({{{"<guest>"}, "cmdOK"}}, [&form] { doubleClickRow(tags(form), 3); });
    EXPECT_EQ(dialogs.value(0).labels, QStringList("VIP Tag"));
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("DescriptionTagSettings.save.tbl")));
    EXPECT_EQ(luaValues(settings).count("tDescriptionTagSettings.bNotifyOps"), 0U);
    hub.store.files["/hub/cfg/Profiles.xml"] += "<Name>Reg</Name>\r\n";
    test::buildTree(hub);
    EXPECT_TRUE(sameBytes(settings, golden("DescriptionTagSettings.rebuild.tbl")));
}

TEST_F(DescriptionTagsForm, ACancelledEditOrTheDeleteKeyChangesNothing)
{
    auto& form = openForm();
    entering({{{"x"}, "cmdCancel"}}, [&form] { doubleClickRow(tags(form), 0); });
    EXPECT_TRUE(test::answering(QMessageBox::Ok, [&form] {
                    QTest::keyClick(&tags(form), Qt::Key_Delete);
                }).isEmpty());
    EXPECT_EQ(shown(tags(form)).value(0), "Unregistered|[Unregistered]");
    EXPECT_EQ(tags(form).rows().size(), 4U);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(DescriptionTagsForm, ARestoreUnticksAllAndPutsTheNamesBackWithoutWriting)
{
    settings = golden("DescriptionTagSettings.save.tbl");
    auto& form = openForm();
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0110");
    EXPECT_EQ(shown(tags(form)).value(3), "VIP|<guest>");
    restore(form);
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
    EXPECT_EQ(shown(tags(form)), (QStringList{"Unregistered|[Unregistered]", "Master|[Master]",
                                              "Operator|[Operator]", "VIP|[VIP]"}));
    EXPECT_TRUE(sameBytes(settings, golden("DescriptionTagSettings.save.tbl")));
    discard(form);
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0110");
    EXPECT_EQ(shown(tags(form)).value(1), "Master|[Boss]");
}

TEST_F(DescriptionTagsForm, TheBorrowedMenuEditsATag)
{
    auto& form = openForm();
    tags(form).select(2);
    entering({{{"[OP]"}, "cmdOK"}}, [this] { find<QAction>(window(), "mnuOnlyEditEdit").trigger(); });
    EXPECT_EQ(shown(tags(form)).value(2), "Operator|[OP]");
}

TEST_F(DescriptionTagsForm, SixtyFourProfilesHaveTheirRows)
{
    for (std::size_t more = hub.profiles.count(); more < 65; ++more)
        hub.profiles.add("Profile " + std::to_string(more));
    auto& form = openForm();
    ASSERT_EQ(tags(form).rows().size(), 65U);
    EXPECT_EQ(tags(form).rows()[64].cells, (std::vector<std::string>{"Profile 64", ""}));
    restore(form);
    tick(form, "lvwEnabledProfiles", {64});
    save(form);
    const auto values = luaValues(settings);
    EXPECT_EQ(values.size(), 130U);
    EXPECT_EQ(values.at("tDescriptionTagSettings.tProfiles.63"), "[Profile 64]");
    EXPECT_EQ(values.at("tDescriptionTagSettings.tEnabledProfiles.63"), "1");
}

} // namespace
} // namespace quillfen
