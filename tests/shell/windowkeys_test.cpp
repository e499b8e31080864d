#include "shell/mainwindowtest.h"

#include <QMenu>
#include <QMenuBar>

namespace quillfen {
namespace {

using WindowKeys = test::MainWindowTest;

TEST_F(WindowKeys, EveryMenuAndItemHasAMnemonicOfItsOwn)
{
    const auto mnemonics = [](const QList<QAction*>& actions) {
        QStringList letters;
        for (const QAction* action : actions) {
            if (!action->isSeparator())
                letters.append(QKeySequence::mnemonic(action->text()).toString());
        }
        return letters;
    };
    QList<QStringList> menus = {mnemonics(window().menuBar()->actions())};
    for (const QAction* action : window().menuBar()->actions())
        menus.append(mnemonics(action->menu()->actions()));
    for (QStringList& letters : menus) {
        EXPECT_FALSE(letters.contains(QString())) << letters.join(' ').toStdString();
        EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(' ').toStdString();
    }
    EXPECT_EQ(find<QAction>(window(), "mnuFileClose").shortcut(), QKeySequence(QKeySequence::Quit));
}

TEST_F(WindowKeys, ControlTabGoesToTheNextFormAtOnce)
{
    auto& settings = subWindow(open("General~Settings"));
    auto& switches = subWindow(open("General~Switches"));
    auto& bots = subWindow(open("General~Bots"));
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyPress(QApplication::focusWidget(), key, modifiers); // and no release
        return area().currentSubWindow();
    };
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), &settings);
    EXPECT_TRUE(settings.isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), &switches);
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), &settings);
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), &bots);
    EXPECT_EQ(press(Qt::Key_PageDown, Qt::ControlModifier), &settings);
    EXPECT_EQ(press(Qt::Key_PageDown, Qt::ControlModifier), &switches);
    EXPECT_EQ(press(Qt::Key_PageUp, Qt::ControlModifier), &settings);
    EXPECT_EQ(press(Qt::Key_PageUp, Qt::ControlModifier), &bots);
    bots.showMaximized();
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), &settings);
    EXPECT_TRUE(settings.isMaximized()) << "as are all, then";
}

TEST_F(WindowKeys, F6GoesFromTheFormToTheToolbarAndTheTreeAndBack)
{
    auto& form = open("General~Settings");
    auto* field = &find<QWidget>(form, "txtTextBox(1)");
    field->setFocus();
    const auto press = [](Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
        return QApplication::focusWidget();
    };
    auto* toolbar = &find<QToolBar>(window(), "tlbMDITop");
    EXPECT_EQ(press({}), toolbar->widgetForAction(&find<QAction>(*toolbar, "TREEVIEW")));
    EXPECT_EQ(press({}), &find<QWidget>(window(), "txtFind"));
    EXPECT_EQ(press({}), field);
    find<QWidget>(window(), "tvwFunctions").setFocus();
    EXPECT_EQ(press({}), field);
    EXPECT_EQ(press(Qt::ShiftModifier), &find<QWidget>(window(), "tvwFunctions")) << "where it was last";
    EXPECT_TRUE(toolbar->isAncestorOf(press(Qt::ShiftModifier)));
    EXPECT_EQ(press(Qt::ShiftModifier), field);
    find<QAction>(window(), "mnuToolsSideBar").trigger();
    field->setFocus();
    EXPECT_TRUE(toolbar->isAncestorOf(press({})));
    EXPECT_EQ(press({}), field) << "the tree is hidden";
    subWindow(form).showMinimized();
    toolbar->widgetForAction(&find<QAction>(*toolbar, "TREEVIEW"))->setFocus();
    EXPECT_TRUE(toolbar->isAncestorOf(press({}))) << "and so is the form";
}

TEST_F(WindowKeys, TabReachesTheButtonsOfTheToolbarsInTheirOrder)
{
    QWidgetList met;
    auto* first = &find<QWidget>(window(), "tvwFunctions");
    first->setFocus();
    do {
        met.append(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && met.size() < 50);
    for (const char* name : {"tlbMDITop", "tlbSidebar"}) {
        auto& toolbar = find<QToolBar>(window(), name);
        QWidgetList buttons;
        for (auto* action : toolbar.actions()) {
            if (!action->isSeparator())
                buttons.append(toolbar.widgetForAction(action));
        }
        EXPECT_EQ(met.mid(met.indexOf(buttons.constFirst()), buttons.size()), buttons) << name;
    }
}

TEST_F(WindowKeys, StartsInTheFindBox)
{
    EXPECT_EQ(QApplication::focusWidget(), &find<QWidget>(window(), "txtFind"));
}

} // namespace
} // namespace quillfen
