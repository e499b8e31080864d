#include "support/formtest.h"
#include "support/golden.h"
#include "support/lua.h"

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::luaValues;
using test::sameBytes;

/// Mute and talk are one form twice.
class ChatPermissionForms : public test::FormTest, public testing::WithParamInterface<const char*>
{
protected:
    EditorForm& openForm() { return open(("Communication~" + word).c_str()); }
    static QTreeView& list(EditorForm& form) { return find<QTreeView>(form, "lvwPermissions"); }
    static QAction& toggle(EditorForm& form) { return button(form, "EDIT", "tlbListview"); }

    std::string expected(const char* name) const
    {
        return "t" + word + golden(std::string("communication/") + name).substr(5);
    }

    const std::string word = GetParam();
    const QString command = QString::fromStdString(word);
    std::string& file = hub.file("Communication/" + word + "/" + word + ".tbl");
};

INSTANTIATE_TEST_SUITE_P(Both, ChatPermissionForms, testing::Values("Mute", "Talk"),
                         [](const auto& each) { return std::string(each.param); });

TEST_P(ChatPermissionForms, ShowABlockPerActingProfile)
{
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmCommunication" + command);
    EXPECT_EQ(form.windowTitle(), "Communication ~ " + command);
    EXPECT_EQ(
        shown(list(form)),
        (QStringList{command + "|Unregistered|Unregistered|No", "||Master|No", "||Operator|No", "||VIP|No",
                     command + "|Master|Unregistered|No", "||Master|No", "||Operator|No", "||VIP|No",
                     command + "|Operator|Unregistered|No", "||Master|No", "||Operator|No", "||VIP|No",
                     command + "|VIP|Unregistered|No", "||Master|No", "||Operator|No", "||VIP|No"}));
    EXPECT_FALSE(isDirty(form));
}

TEST_P(ChatPermissionForms, NameTheirColumnsAndHideTheProfileNumbers)
{
    auto& form = openForm();
    QStringList captions;
    for (int column = 0; column < list(form).model()->columnCount(); ++column)
        captions.append(list(form).model()->headerData(column, Qt::Horizontal).toString());
    EXPECT_EQ(captions,
              (QStringList{"Command", "By Profile", "On Profile", "Allow To", "iProfileBy", "iProfileOn"}));
    EXPECT_TRUE(list(form).isColumnHidden(4));
    EXPECT_TRUE(list(form).isColumnHidden(5));
    EXPECT_EQ(list(form).model()->index(6, 4).data(), "0");
    EXPECT_EQ(list(form).model()->index(6, 5).data(), "1");
}

TEST_P(ChatPermissionForms, HaveNoRestoreAndOneButtonAtTheList)
{
    auto& form = openForm();
    const auto& bar = find<QToolBar>(form, "tlbFormToolbar");
    EXPECT_EQ(bar.findChild<QAction*>("RESTORE"), nullptr);
    EXPECT_NE(bar.findChild<QAction*>("DISCARD"), nullptr);
    EXPECT_EQ(find<QToolBar>(form, "tlbListview").actions().size(), 1);
}

TEST_P(ChatPermissionForms, ToggleByButtonAndByDoubleClickAndSave)
{
    auto& form = openForm();
    clickRow(list(form), 1);
    toggle(form).trigger();
    EXPECT_EQ(shown(list(form))[1], "||Master|Yes");
    EXPECT_EQ(list(form).currentIndex().row(), 1);
    EXPECT_TRUE(isDirty(form));
    doubleClickRow(list(form), 11);
    doubleClickRow(list(form), 12);
    doubleClickRow(list(form), 12);
    EXPECT_EQ(shown(list(form))[12], command + "|VIP|Unregistered|No");
    const auto before = shown(list(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(file, expected("Mute.save.tbl")));
    EXPECT_EQ(shown(list(form)), before);
    const auto values = luaValues(file);
    EXPECT_EQ(values.at("t" + word + ".-1.0"), "1");
    EXPECT_EQ(values.at("t" + word + ".1.2"), "1");
    EXPECT_EQ(values.at("t" + word + ".2.-1"), "0");
    EXPECT_EQ(values.size(), 16U);
}

TEST_P(ChatPermissionForms, ReadTheirFileOnceAndDiscardBackToIt)
{
    file = expected("Mute.save.tbl");
    hub.store.readings.clear();
    auto& form = openForm();
    EXPECT_EQ(hub.store.readings[hub.root + "/Communication/" + word + "/" + word + ".tbl"], 1);
    clickRow(list(form), 1);
    toggle(form).trigger();
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(shown(list(form))[1], "||Master|Yes");
    EXPECT_EQ(shown(list(form))[11], "||VIP|Yes");
    EXPECT_FALSE(isDirty(form));
}

TEST_P(ChatPermissionForms, NothingSelectedIsNothingToggled)
{
    auto& form = openForm();
    list(form).clearSelection();
    toggle(form).trigger();
    EXPECT_FALSE(isDirty(form));
}

TEST_P(ChatPermissionForms, AHubWithoutProfilesShowsOneRow)
{
    hub.profiles = {};
    auto& form = openForm();
    EXPECT_EQ(shown(list(form)), QStringList{command + "|Unregistered|Unregistered|No"});
}

} // namespace
} // namespace quillfen
