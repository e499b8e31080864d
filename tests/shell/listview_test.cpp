#include "shell/kit/listview.h"
#include "shell/kit/rowlist.h"
#include "support/formtest.h"

#include <QContextMenuEvent>
#include <QDialog>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

namespace quillfen {
namespace {

TEST(ListViewTest, AListThatGetsRowsSelectsTheFirst)
{
    RowList list("lvwSample", {"Text"}, true);
    int ticks = 0;
    QObject::connect(&list, &RowList::tickChanged, [&ticks] { ++ticks; });
    EXPECT_EQ(list.currentRow(), -1);
    list.setRows({{{"a"}}, {{"b"}}});
    EXPECT_EQ(list.currentRow(), 0);
    list.select(1);
    list.append({{"c"}});
    EXPECT_EQ(list.currentRow(), 1) << "a selection stays";
    list.setRows({});
    EXPECT_EQ(list.currentRow(), -1);
    list.append({{"d"}});
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_EQ(ticks, 0);
}

TEST(ListViewTest, ATextTooLongForItsCellHasAToolTip)
{
    RowList list("lvwSample", {"Text", "More"}, false);
    list.setRows({{{"short", "x"}}, {{"a text that is much too long for its cell", "x"}}});
    list.setColumnWidths({80, 80});
    list.resize(300, 200);
    list.show();
    const auto tipAt = [&list](int row) {
        const QPoint at = list.visualRect(list.model()->index(row, 0)).center();
        QHelpEvent help(QEvent::ToolTip, at, list.viewport()->mapToGlobal(at));
        QApplication::sendEvent(list.viewport(), &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    EXPECT_EQ(tipAt(0), "");
    EXPECT_EQ(tipAt(1), "<p>a text that is much too long for its cell</p>");
}

TEST(ListViewTest, AnEmptyListSaysInGreyWhatBelongsThere)
{
    RowList list("lvwSample", {"Text"}, false);
    list.resize(300, 200);
    const QImage nothing = list.grab().toImage();
    list.setEmptyText("Each row is a word.");
    const QImage told = list.grab().toImage();
    EXPECT_NE(told, nothing);
    list.setRows({{{"a"}}});
    const QImage row = list.grab().toImage();
    list.setEmptyText({});
    EXPECT_EQ(list.grab().toImage(), row) << "not while there are rows";
}

TEST(ListViewTest, AListWithoutASelectionSelectsItsFirstRowAsItGetsTheFocus)
{
    QWidget window;
    auto* list = new RowList("lvwSample", {"Text"}, false, &window);
    list->setRows({{{"a"}}, {{"b"}}});
    list->clearSelection();
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    list->setFocus();
    EXPECT_EQ(list->currentRow(), 0);
}

TEST(ListViewTest, AListWhoseSelectionHasAMeaningSelectsNothingByItselfButForSpace)
{
    QWidget window;
    auto* list = new RowList("lvwSample", {"Text"}, true, &window);
    list->setSelectsFirst(false);
    int selectedAtTick = -1;
    QObject::connect(list, &RowList::tickChanged, [&] { selectedAtTick = list->currentRow(); });
    list->setRows({{{"a"}}});
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    list->setFocus();
    EXPECT_EQ(list->currentRow(), -1);
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_TRUE(list->rows()[0].checked);
    EXPECT_EQ(selectedAtTick, 0) << "what follows the tick finds its row selected";
}

TEST(ListViewTest, ARightPressTellsWhetherItIsOnARow)
{
    RowList list("lvwSample", {"Text"}, false);
    list.resize(200, 200);
    list.setRows({{{"a"}}});
    list.show();
    QList<bool> pressed;
    QObject::connect(&list, &ListView::menuAsked,
                     [&pressed](const QPoint&, bool onRow) { pressed += onRow; });
    for (const QPoint at : {list.visualRect(list.model()->index(0, 0)).center(), QPoint(20, 150)}) {
        QContextMenuEvent press(QContextMenuEvent::Mouse, at, list.viewport()->mapToGlobal(at));
        QApplication::sendEvent(list.viewport(), &press);
    }
    EXPECT_EQ(pressed, (QList<bool>{true, false}));
}

class ListsInForms : public test::FormTest
{
};

TEST_F(ListsInForms, AnEmptyListTellsHowToAddARow)
{
    auto& form = open("Security~BadNickBlocker");
    const QString text = find<RowList>(form, "lvwBadNickList").emptyText();
    EXPECT_TRUE(text.endsWith(": the first button, or the Insert key.")) << text.toStdString();
    auto& words = find<RowList>(open("Games~Anagrams"), "lvwWords");
    EXPECT_TRUE(words.emptyText().endsWith("Open reads the rows of the file."));
}

TEST_F(ListsInForms, AFormsListOpensWithItsFirstRowSelectedAndEnterEditsIt)
{
    auto& form = open("General~Bots");
    EXPECT_EQ(find<RowList>(form, "lvwBots").currentRow(), 0);
    EXPECT_FALSE(isDirty(form));
    QString title;
    test::withModal([&form] { QTest::keyClick(&find<RowList>(form, "lvwBots"), Qt::Key_Return); },
                    [&title](QWidget& dialog) {
                        title = dialog.windowTitle();
                        dialog.close();
                    });
    EXPECT_EQ(title, "Edit Bot");
}

TEST_F(ListsInForms, TheSelectionOfAFirstRowShowsNoBalloonTicksNothingAndLeavesTheFormClean)
{
    auto& form = open("General~Switches");
    auto& list = find<RowList>(form, "lvwSwitches");
    const auto rows = list.rows();
    list.setFocus();
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_EQ(list.rows(), rows);
    EXPECT_FALSE(isDirty(form));
    for (const QWidget* each : QApplication::topLevelWidgets())
        EXPECT_FALSE(each->isVisible() && each->windowType() == Qt::ToolTip);
}

TEST_F(ListsInForms, AGridSelectsItsFirstRowAlsoBehindAFilterAndTogglesNothing)
{
    auto& form = open("Security~Kicks~Permissions");
    auto& list = find<ListView>(form, "lvwPermissions");
    EXPECT_EQ(list.currentRow(), 0);
    const QStringList before = shown(list);
    find<QAction>(form, "C*Ban").trigger();
    EXPECT_EQ(list.currentRow(), 0);
    find<QAction>(form, "COMMAND").trigger();
    EXPECT_EQ(shown(list), before);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(ListsInForms, ARightPressBelowTheLastRowOfAGridOpensNoMenu)
{
    auto& form = open("Security~Kicks~Permissions");
    auto& list = find<ListView>(form, "lvwPermissions");
    find<QAction>(form, "C*Ban").trigger();
    find<QAction>(form, "Master").trigger();
    auto* menu = window().popUpMenu("mnuTrueFalse");
    emit list.menuAsked({0, 0}, false);
    EXPECT_FALSE(menu->isVisible());
    emit list.menuAsked({0, 0}, true);
    EXPECT_TRUE(menu->isVisible());
    menu->hide();
}

TEST_F(ListsInForms, AGridsColumnsAreAsWideAsTheirWidestTextAtAnyCountOfProfiles)
{
    while (hub.profiles.count() < 63)
        hub.profiles.add("P");
    const QString widest = "A profile whose name is as long as hubs let one be, 64 in all";
    hub.profiles.add(widest.toStdString());
    auto& form = open("Security~Kicks~Permissions");
    auto& list = find<ListView>(form, "lvwPermissions");
    const auto room = [&list](int column) { return list.columnWidth(column); };
    const auto wanted = [&list](const QString& text) { return list.fontMetrics().horizontalAdvance(text); };
    EXPECT_GT(room(0), wanted("TimeBan"));
    EXPECT_GT(room(1), wanted(widest));
    EXPECT_GT(room(2), wanted(widest));
}

} // namespace
} // namespace quillfen
