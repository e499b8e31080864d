#include "functions/security/securityformtest.h"

#include <QMenu>

namespace quillfen {
namespace {

using test::sameBytes;

class FloodForm : public test::SecurityForms
{
protected:
    std::string& settings = file("Flood/FloodSettings.tbl");

    static QTreeView& list(EditorForm& form) { return find<QTreeView>(form, "lvwPermissions"); }
};

TEST_F(FloodForm, ShowsAllProfilesOnBothSides)
{
    settings = golden("Flood.save.tbl");
    auto& form = open("Security~Flooder");
    EXPECT_EQ(form.objectName(), "frmSecurityFlood");
    EXPECT_EQ(form.windowTitle(), "Security ~ Flood");
    const auto rows = shown(list(form));
    ASSERT_EQ(rows.size(), 16);
    EXPECT_EQ(rows[0], "Flood|Unregistered|Unregistered|No");
    EXPECT_EQ(rows[1], "||Master|No");
    EXPECT_EQ(rows[4], "|Master|Unregistered|Yes");
    EXPECT_EQ(rows[7], "||VIP|Yes");
    EXPECT_EQ(rows[14], "||Operator|Yes");
    QStringList captions;
    for (int column = 0; column < 6; ++column)
        captions.append(list(form).model()->headerData(column, Qt::Horizontal).toString());
    EXPECT_EQ(captions,
              (QStringList{"Command", "By Profile", "On Profile", "Allow To", "iProfileBy", "iProfileOn"}));
    EXPECT_EQ(list(form).model()->index(4, 4).data(), "0");
    EXPECT_EQ(list(form).model()->index(4, 5).data(), "-1");
    auto* toolbar = form.findChild<QToolBar*>("tlbFormToolbar");
    EXPECT_TRUE(toolbar->findChild<QAction*>("SAVE"));
    EXPECT_TRUE(toolbar->findChild<QAction*>("DISCARD"));
    EXPECT_FALSE(toolbar->findChild<QAction*>("RESTORE"));
}

TEST_F(FloodForm, ButtonDoubleClickAndMenuToggleTheRow)
{
    auto& form = open("Security~Flooder");
    clickRow(list(form), 4);
    button(form, "EDIT", "tlbListview").trigger();
    EXPECT_TRUE(isDirty(form));
    clickRow(list(form), 7);
    doubleClickRow(list(form), 7);
    clickRow(list(form), 14);
    auto* menu = window().findChild<QMenu*>("mnuTrueFalse");
    QContextMenuEvent event(QContextMenuEvent::Mouse, placeOf(list(form), 14).center(),
                            list(form).viewport()->mapToGlobal(placeOf(list(form), 14).center()));
    QCoreApplication::sendEvent(list(form).viewport(), &event);
    EXPECT_TRUE(menu->actions()[0]->isEnabled());
    EXPECT_FALSE(menu->actions()[1]->isEnabled());
    menu->actions()[0]->trigger();
    menu->close();
    EXPECT_EQ(shown(list(form))[14], "||Operator|Yes");
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("Flood.save.tbl")));
    EXPECT_EQ(shown(list(form)).size(), 16) << "the save takes rows off, and the form reloads";
}

TEST_F(FloodForm, ADiscardReloads)
{
    auto& form = open("Security~Flooder");
    clickRow(list(form), 0);
    button(form, "EDIT", "tlbListview").trigger();
    EXPECT_EQ(shown(list(form))[0], "Flood|Unregistered|Unregistered|Yes");
    discard(form);
    EXPECT_EQ(shown(list(form))[0], "Flood|Unregistered|Unregistered|No");
}

TEST_F(FloodForm, OneProfileMakesOneRow)
{
    hub.profiles = {};
    auto& form = open("Security~Flooder");
    EXPECT_EQ(shown(list(form)), (QStringList{"Flood|Unregistered|Unregistered|No"}));
}

} // namespace
} // namespace quillfen
