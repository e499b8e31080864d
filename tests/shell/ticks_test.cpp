// Ticks that are set together: by keys, by right click, and for the selected rows.
#include "shell/kit/rowlist.h"
#include "support/formtest.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace quillfen {
namespace {

class Ticks : public test::FormTest
{
protected:
    RowList& listOf(EditorForm& form, const char* name)
    {
        auto& list = find<RowList>(form, name);
        list.setFocus();
        return list;
    }

    static QString ticksOf(const RowList& list)
    {
        QString all;
        for (const CellRow& row : list.rows())
            all += row.checked ? '+' : '-';
        return all;
    }

    /// The texts of the menu that a right click on a row opens; it is chosen from if `chosen` is one of them.
    static QStringList menuOf(RowList& list, const QString& chosen = {})
    {
        const QPoint at = placeOf(list, 0).center();
        QContextMenuEvent press(QContextMenuEvent::Mouse, at, list.viewport()->mapToGlobal(at));
        QApplication::sendEvent(list.viewport(), &press);
        QStringList texts;
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return texts;
        const auto actions = menu->actions();
        for (auto* action : actions) {
            texts.append(action->text().remove('&'));
            if (texts.last() == chosen)
                action->trigger();
        }
        menu->close();
        return texts;
    }
};

TEST_F(Ticks, KeysTickAllNoneAndTheOtherWayRoundAndTheFormSavesIt)
{
    auto& form = open("UserActions~Calculator");
    auto& list = listOf(form, "lvwEnabledProfiles");
    const QString all(static_cast<qsizetype>(list.rows().size()), '+');
    const QString none(all.size(), '-');
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(ticksOf(list), all);
    EXPECT_TRUE(isDirty(form));
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(ticksOf(list), none);
    clickTick(list, 1);
    QTest::keyClick(&list, Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(ticksOf(list), "+-++");
    button(form, "SAVE").trigger();
    EXPECT_EQ(hub.file("UserActions/Calculator/CalculatorSettings.tbl"),
              "tCalculatorSettings = {\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n"
              "\t\t[1] = 1,\r\n\t\t[2] = 1,\r\n\t},\r\n}\r\n");
}

TEST_F(Ticks, WhatIsTickedAlreadyHasNotChanged)
{
    RowList list("lvwSample", {"Text"}, true);
    list.setRows({{{"a"}, true}, {{"b"}}, {{"c"}, true}});
    list.show();
    QList<int> changed;
    QObject::connect(&list, &RowList::tickChanged, [&changed](int row) { changed += row; });
    find<QAction>(list, "TickAll").trigger();
    EXPECT_EQ(changed, QList<int>{1});
    find<QAction>(list, "TickAll").trigger();
    EXPECT_EQ(changed, QList<int>{1});
}

TEST_F(Ticks, ARightClickOffersThemWhereTheListHasNoMenuOfItsOwn)
{
    auto& form = open("UserActions~Calculator");
    auto& list = listOf(form, "lvwEnabledProfiles");
    const QString before = ticksOf(list);
    EXPECT_EQ(menuOf(list, "Invert"), (QStringList{"All", "None", "Invert"}));
    QString inverted;
    for (const QChar tick : before)
        inverted += tick == '+' ? '-' : '+';
    EXPECT_EQ(ticksOf(list), inverted);
    EXPECT_TRUE(isDirty(form));
}

TEST_F(Ticks, AListWithABorrowedMenuShowsThatAndTakesTheKeys)
{
    auto& form = open("CustomiseUser~CustomRightClick");
    auto& list = listOf(form, "lvwCustomRightClicks");
    list.setRows({{{"a", "Master", "User"}}, {{"b", "Master", "User"}}});
    const QStringList offered = menuOf(list);
    EXPECT_FALSE(offered.contains("Invert")) << offered.join('|').toStdString();
    EXPECT_FALSE(offered.isEmpty());
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(ticksOf(list), "++");
}

TEST_F(Ticks, WhereATickDoesSomethingOfItsOwnTheyAreNotSetTogether)
{
    for (const auto& [key, name] :
         {std::pair("Communication~Portal", "lvwHubs"), std::pair("General~Commands", "lvwFiles")}) {
        auto& form = open(key);
        auto& list = listOf(form, name);
        list.setRows({{{"a", "b", "c", "d"}}, {{"e", "f", "g", "h"}}});
        QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&list, Qt::Key_I, Qt::ControlModifier);
        EXPECT_EQ(ticksOf(list), "--") << name;
        EXPECT_FALSE(menuOf(list).contains("All")) << name;
    }
}

TEST_F(Ticks, SpaceGivesSelectedRowsTheTickThatTheFirstOneGets)
{
    RowList list("lvwSample", {"Text"}, true);
    list.setRows({{{"a"}}, {{"b"}, true}, {{"c"}}, {{"d"}}});
    list.show();
    clickRow(list, 2);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ShiftModifier, placeOf(list, 0).center());
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(ticksOf(list), "+++-");
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(ticksOf(list), "----");
    clickRow(list, 3);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(ticksOf(list), "---+") << "one row alone as ever";
}

} // namespace
} // namespace quillfen
