#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"
#include "support/lua.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::luaValues;
using test::sameBytes;

class MassMessageForm : public test::FormTest
{
protected:
    EditorForm& openForm() { return open("Communication~MassMessage"); }
    static QTreeView& grid(EditorForm& form) { return find<QTreeView>(form, "lvwPermissions"); }
    static RowList& immune(EditorForm& form) { return find<RowList>(form, "lvwEnabledProfiles"); }
    static QAction& tool(EditorForm& form, const char* key) { return button(form, key, "tlbListview"); }

    std::string& settings = hub.file("Communication/MassMessage/MassMessageSettings.tbl");
};

TEST_F(MassMessageForm, ShowsABlockPerActingProfileWithTheNamedTargetsBehind)
{
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmCommunicationMassMessage");
    EXPECT_EQ(form.windowTitle(), "Communication ~ MassMessage");
    const auto rows = shown(grid(form));
    ASSERT_EQ(rows.size(), 4 * 7);
    EXPECT_EQ(rows.mid(0, 8), (QStringList{"MassMessage|Unregistered|Unregistered|No", "||Master|No",
                                           "||Operator|No", "||VIP|No", "||Passive|No", "||Banner|No",
                                           "||All|No", "MassMessage|Master|Unregistered|No"}));
    QStringList captions;
    for (int column = 0; column < 6; ++column)
        captions.append(grid(form).model()->headerData(column, Qt::Horizontal).toString());
    EXPECT_EQ(captions,
              (QStringList{"Command", "By Profile", "On Profile", "Allow To", "iProfileBy", "iProfileOn"}));
    EXPECT_TRUE(grid(form).isColumnHidden(4));
    EXPECT_TRUE(grid(form).isColumnHidden(5));
    EXPECT_EQ(grid(form).model()->index(12, 4).data(), "0");
    EXPECT_EQ(grid(form).model()->index(12, 5).data(), "Banner");
    EXPECT_EQ(grid(form).model()->index(8, 5).data(), "0");
    EXPECT_EQ(immune(form).accessibleName(), "Immune Passive Profiles");
    QStringList labels;
    for (const auto* label : form.findChildren<QLabel*>())
        labels.append(label->text());
    EXPECT_TRUE(labels.contains("Immune Passive Profiles"));
    EXPECT_EQ(find<QToolBar>(form, "tlbFormToolbar").findChild<QAction*>("RESTORE"), nullptr);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(MassMessageForm, HasBlocksOfEightRowsForFiveProfiles)
{
    hub.profiles.add("Fifth");
    EXPECT_EQ(shown(grid(openForm())).size(), 5 * 8);
}

TEST_F(MassMessageForm, TheToolbarAmendsThePassiveFile)
{
    auto& form = openForm();
    QStringList keys;
    for (const auto* action : find<QToolBar>(form, "tlbListview").actions())
        keys.append(action->objectName());
    EXPECT_EQ(keys, (QStringList{"AMEND", "EDIT"}));
    EXPECT_EQ(tool(form, "AMEND").toolTip(), "Amend Passive File");
    immune(form).setFocus();
    QStringList reached; // by Tab
    for (int press = 0; press < 3; ++press) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const auto* pressed = qobject_cast<QToolButton*>(QApplication::focusWidget());
        reached.append(pressed ? pressed->defaultAction()->objectName()
                               : QApplication::focusWidget()->objectName());
    }
    EXPECT_EQ(reached, (QStringList{"lvwPermissions", "AMEND", "EDIT"}));
    test::withModal([&form] { tool(form, "AMEND").trigger(); },
                    [](QWidget& dialog) {
                        EXPECT_EQ(find<QLineEdit>(dialog, "txtPath").text(),
                                  R"(Communication\MassMessage\Passive.asc)");
                        find<QPlainTextEdit>(dialog, "txtTextBox").setPlainText("Go active!");
                        find<QAction>(dialog, "SAVE").trigger();
                        dialog.close();
                    });
    EXPECT_EQ(hub.file("Communication/MassMessage/Passive.asc"), "Go active!\r\n");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(MassMessageForm, IsSavedWithQuotedNamesAndWithoutTheOperator)
{
    auto& form = openForm();
    clickTick(immune(form), 0);
    EXPECT_TRUE(isDirty(form));
    clickTick(immune(form), 2);
    clickRow(grid(form), 1);
    tool(form, "EDIT").trigger();
    EXPECT_EQ(grid(form).currentIndex().row(), 1);
    doubleClickRow(grid(form), 12);
    doubleClickRow(grid(form), 17);
    doubleClickRow(grid(form), 27);
    doubleClickRow(grid(form), 26);
    doubleClickRow(grid(form), 26);
    const auto before = shown(grid(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("communication/MassMessageSettings.save.tbl")));
    EXPECT_EQ(shown(grid(form)), before);
    const auto values = luaValues(settings);
    EXPECT_EQ(values.at("tMassMessageSettings.tEnabledPassiveProfiles.1"), "1");
    EXPECT_EQ(values.at("tMassMessageSettings.0.Banner"), "1");
    EXPECT_FALSE(values.contains("tMassMessageSettings.0.Operator"));
}

TEST_F(MassMessageForm, ReadsBothWritersFilesAlike)
{
    settings = golden("communication/MassMessageSettings.save.tbl");
    auto& form = openForm();
    const auto saved = shown(grid(form));
    EXPECT_EQ(saved[1], "||Master|Yes");
    EXPECT_EQ(saved[12], "||Banner|Yes");
    EXPECT_EQ(saved[27], "||All|Yes");
    EXPECT_TRUE(immune(form).rows()[2].checked);
    settings = golden("communication/MassMessageSettings.rebuild.tbl");
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(shown(grid(form)), saved);
    EXPECT_EQ(immune(form).rows().size(), 4U);
    EXPECT_TRUE(immune(form).rows()[2].checked);
}

TEST_F(MassMessageForm, ReadsItsFileOnceAndAgainAfterASave)
{
    hub.store.readings.clear();
    int& readings = hub.store.readings[hub.root + "/Communication/MassMessage/MassMessageSettings.tbl"];
    auto& form = openForm();
    EXPECT_EQ(readings, 1);
    doubleClickRow(grid(form), 1);
    button(form, "SAVE").trigger();
    EXPECT_EQ(readings, 2);
}

TEST_F(MassMessageForm, AFailedSaveKeepsTheRowsAndStaysDirty)
{
    auto& form = openForm();
    doubleClickRow(grid(form), 1);
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(shown(grid(form))[1], "||Master|Yes");
    EXPECT_TRUE(isDirty(form));
}

} // namespace
} // namespace quillfen
