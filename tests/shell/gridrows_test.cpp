// What eases a permission grid of many profiles: several rows at once, sentences, and the names on top.
#include "shell/kit/listview.h"
#include "support/formtest.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>

#include <set>

namespace quillfen {
namespace {

/// The kicks' grid of a hub of three profiles beside "Unregistered": 16 cells a command.
class GridRows : public test::FormTest
{
protected:
    EditorForm& openGrid() { return open("Security~Kicks~Permissions"); }

    static ListView& rowsOf(EditorForm& form)
    {
        auto& list = find<ListView>(form, "lvwPermissions");
        list.setFocus();
        return list;
    }

    static void choose(EditorForm& form, const char* entry) { find<QAction>(form, entry).trigger(); }

    static QString told(EditorForm& form)
    {
        return find<QStatusBar>(form, "stsStatusBar").findChildren<QLabel*>().at(1)->text();
    }

    static void clickWith(ListView& list, int row, Qt::KeyboardModifier held)
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, held, placeOf(list, row).center());
    }

    /// The answers of rows, Y or N.
    static QString answers(const ListView& list, int first, int last)
    {
        QString all;
        for (int row = first; row <= last; ++row)
            all += list.model()->index(row, 3).data().toString().at(0);
        return all;
    }
};

TEST_F(GridRows, ThreeKeysAllowAWholeProfileEverythingThatAFilterShows)
{
    auto& form = openGrid();
    auto& list = rowsOf(form);
    choose(form, "Operator");
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(isDirty(form)) << "nothing is answered by a choice of rows";
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(answers(list, 0, 23), QString(24, 'Y'));
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    const std::string none = "\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t\t[1] = 0,\r\n\t\t[2] = 0,\r\n\t},\r\n";
    const std::string all = "\t\t[-1] = 1,\r\n\t\t[0] = 1,\r\n\t\t[1] = 1,\r\n\t\t[2] = 1,\r\n\t},\r\n";
    for (const std::string word : {"Drop", "Warn", "Kick", "TimeBan", "Ban", "Unban"})
        EXPECT_EQ(hub.file("Security/Kick/KickCan" + word + ".tbl"),
                  "tKickCan" + word + " = {\r\n\t[-1] = {\r\n" + none + "\t[0] = {\r\n" + none +
                      "\t[1] = {\r\n" + all + "\t[2] = {\r\n" + none + "}\r\n")
            << word;
}

TEST_F(GridRows, SeveralRowsGetTheAnswerThatTheFirstOneGetsWhicheverWasChosenFirst)
{
    auto& form = openGrid();
    auto& list = rowsOf(form);
    clickRow(list, 3);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(answers(list, 0, 5), "NNNYNN");
    clickRow(list, 4);
    clickWith(list, 1, Qt::ShiftModifier); // upwards: 4, 3, 2 and 1
    button(form, "EDIT", "tlbListview").trigger();
    EXPECT_EQ(answers(list, 0, 5), "NYYYYN") << "one that had it keeps it";
    clickRow(list, 1);
    clickWith(list, 5, Qt::ControlModifier);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(answers(list, 0, 5), "NNYYYN") << "one that hadn't it stays without";
    EXPECT_EQ(list.selectedRows(), (std::vector<int>{1, 5})) << "the rows stay selected";
}

TEST_F(GridRows, TheBorrowedMenuWorksOnAllSelectedRowsWhereOneOfThemIsUnderThePointer)
{
    auto& form = openGrid();
    auto& list = rowsOf(form);
    auto* menu = window().popUpMenu("mnuTrueFalse");
    const auto rightClick = [&](int row) {
        const QPoint at = placeOf(list, row).center();
        QContextMenuEvent press(QContextMenuEvent::Mouse, at, list.viewport()->mapToGlobal(at));
        QApplication::sendEvent(list.viewport(), &press);
        menu->hide();
    };
    clickRow(list, 0);
    clickWith(list, 2, Qt::ShiftModifier);
    rightClick(1);
    find<QAction>(*menu, "mnuTrueFalseTrue").trigger();
    EXPECT_EQ(answers(list, 0, 4), "YYYNN");
    rightClick(4);
    EXPECT_EQ(list.selectedRows(), std::vector<int>{4});
}

TEST_F(GridRows, WhereAClickTogglesAClickWithShiftOrCtrlChoosesOnly)
{
    auto& form = open("Hyperlink~Permissions");
    auto& list = rowsOf(form);
    const auto answer = [&list](int row) { return list.model()->index(row, 2).data().toString(); };
    const QString before = answer(0);
    clickRow(list, 0);
    EXPECT_NE(answer(0), before);
    const QString second = answer(1);
    const QString third = answer(2);
    clickWith(list, 1, Qt::ControlModifier);
    clickWith(list, 2, Qt::ShiftModifier);
    EXPECT_EQ(answer(1), second);
    EXPECT_EQ(answer(2), third);
    clickRow(list, 2);
    EXPECT_NE(answer(2), third);
    EXPECT_EQ(list.selectedRows(), std::vector<int>{2});
}

TEST_F(GridRows, TheSecondStatusPanelSaysTheRowInASentenceAndTheFilter)
{
    auto& form = openGrid();
    auto& list = rowsOf(form);
    EXPECT_EQ(told(form), "Unregistered may drop Unregistered: No");
    choose(form, "C*TimeBan");
    EXPECT_EQ(told(form), "Unregistered may time ban Unregistered: No; shown: TimeBan");
    choose(form, "Operator");
    clickRow(list, 3);
    EXPECT_EQ(told(form), "Operator may time ban VIP: No; shown: TimeBan by Operator");
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(told(form), "Operator may time ban VIP: Yes; shown: TimeBan by Operator");
    clickWith(list, 1, Qt::ShiftModifier);
    EXPECT_EQ(told(form), "3 rows, the first: Operator may time ban Master: No; shown: TimeBan by Operator");
    button(form, "COMMAND", "tlbListview").trigger();
    button(form, "PROFILE", "tlbListview").trigger();
    EXPECT_EQ(told(form), "Unregistered may drop Unregistered: No");
}

TEST_F(GridRows, EachKindOfGridHasSentencesInItsOwnWords)
{
    EXPECT_EQ(told(open("Communication~MassMessage")), "Unregistered may mass message Unregistered: No");
    auto& registration = open("Security~Registration");
    EXPECT_EQ(told(registration), "Master may add registration of Master: False");
    auto& archive = open("Hyperlink~Permissions");
    rowsOf(archive).select(3 * 4);
    EXPECT_TRUE(told(archive).startsWith("New items for Unregistered: ")) << told(archive).toStdString();
}

TEST_F(GridRows, AScreenReaderHearsARowsWholeSentenceWhicheverCellIsRead)
{
    auto& list = rowsOf(openGrid());
    auto* grid = QAccessible::queryAccessibleInterface(&list);
    ASSERT_TRUE(grid && grid->tableInterface());
    for (const int column : {0, 1, 3}) {
        const auto* cell = grid->tableInterface()->cellAt(6, column);
        ASSERT_TRUE(cell);
        EXPECT_EQ(cell->text(QAccessible::Name), "Master may drop Operator: No") << column;
    }
    EXPECT_EQ(list.model()->index(6, 0).data(), "") << "the cells themselves stay blank";
}

/// Whether something is painted into a cell: more than one colour.
bool hasInk(ListView& list, int row, int column)
{
    const QModelIndex index = list.model()->index(row, column);
    const QImage cell = list.viewport()->grab(list.visualRect(index).adjusted(2, 2, -2, -2)).toImage();
    std::set<QRgb> colours;
    for (int y = 0; y < cell.height(); ++y) {
        for (int x = 0; x < cell.width(); ++x)
            colours.insert(cell.pixel(x, y));
    }
    return colours.size() > 1;
}

TEST_F(GridRows, TheRowOnTopNamesCommandAndProfileAlsoWhereItsCellsAreBlank)
{
    auto& form = openGrid();
    form.parentWidget()->resize(500, 300);
    auto& list = rowsOf(form);
    list.clearSelection();
    ASSERT_TRUE(hasInk(list, 0, 0));
    ASSERT_FALSE(hasInk(list, 2, 0)) << "the test looks at the wrong place";
    list.verticalScrollBar()->setValue(2);
    ASSERT_EQ(list.indexAt({0, 0}).row(), 2);
    for (const int column : {0, 1}) {
        EXPECT_EQ(list.model()->index(2, column).data(), "") << column;
        EXPECT_TRUE(hasInk(list, 2, column)) << column;
        EXPECT_FALSE(hasInk(list, 3, column)) << column;
    }
    list.verticalScrollBar()->setValue(3);
    EXPECT_TRUE(hasInk(list, 3, 0)) << "the next row on top";
    list.verticalScrollBar()->setValue(0);
    ASSERT_FALSE(hasInk(list, 3, 0));
    list.setRowHidden(2, {}, true);
    EXPECT_TRUE(hasInk(list, 3, 0)) << "the row above it is out of sight";
}

} // namespace
} // namespace quillfen
