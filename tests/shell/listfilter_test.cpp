// The filter of lists, which hides rows from view and from nothing else, and the typing that finds a row.
#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>

namespace quillfen {
namespace {

using test::answering;
using test::entering;

class ListFilters : public test::FormTest
{
protected:
    /// The users who may clear scores, of these names.
    EditorForm& openUsers(std::initializer_list<const char*> names)
    {
        std::string& file = hub.file("Games/Globals/ScoreClearers.tbl");
        file = "tScoreClearers = {\r\n";
        for (const char* name : names)
            file += std::string("\t[\"") + name + "\"] = 1,\r\n";
        file += "}\r\n";
        return open("Games~ScoreClearers");
    }

    static RowList& users(EditorForm& form) { return find<RowList>(form, "lvwUsers"); }

    /// Right clicks of these words, none of which is ticked.
    EditorForm& openRightClicks(std::initializer_list<const char*> words)
    {
        auto& form = open("CustomiseUser~CustomRightClick");
        std::vector<CellRow> rows;
        for (const char* word : words)
            rows.push_back({{word, "VIP", "Users"}});
        find<RowList>(form, "lvwCustomRightClicks").setRows(rows);
        return form;
    }

    static void pressFilterKeys(QWidget& focused)
    {
        QTest::keyClick(&focused, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    }

    /// Types into the list's filter, which is opened by its keys if it isn't yet.
    static void filter(ListView& list, const QString& words)
    {
        list.window()->activateWindow(); // a box that was closed leaves none active here
        ASSERT_TRUE(QTest::qWaitForWindowActive(list.window()));
        list.setFocus();
        pressFilterKeys(list);
        auto& line = find<QLineEdit>(list, "txtFilter");
        ASSERT_TRUE(line.hasFocus());
        QTest::keyClicks(&line, words);
    }

    static void leaveFilter(ListView& list)
    {
        QTest::keyClick(&find<QLineEdit>(list, "txtFilter"), Qt::Key_Escape);
    }

    /// The first cells of the rows in sight.
    static QStringList seen(const ListView& list)
    {
        QStringList all;
        for (const int row : list.shownRows())
            all.append(list.model()->index(row, 0).data().toString());
        return all;
    }

    static QStringList words(const RowList& list)
    {
        QStringList all;
        for (const CellRow& row : list.rows())
            all.append(QString::fromStdString(row.cells[0]));
        return all;
    }
};

TEST_F(ListFilters, HideTheRowsWithoutTheirWordsAndSaveThemAllTheSame)
{
    auto& form = openUsers({"Quill", "opFen", "opQuillon", "Ink"});
    auto& list = users(form);
    filter(list, "quill op");
    EXPECT_EQ(seen(list), QStringList{"opQuillon"}) << "words in any order and letters in any case";
    EXPECT_FALSE(isDirty(form));
    entering({{{"Nib"}}}, [&form] { button(form, "NEW", "tlbListview").trigger(); });
    EXPECT_EQ(seen(list), (QStringList{"opQuillon", "Nib"})) << "a row that was just made is in sight";
    button(form, "SAVE").trigger();
    EXPECT_EQ(hub.file("Games/Globals/ScoreClearers.tbl"),
              "tScoreClearers = {\r\n\t[\"Quill\"] = 1,\r\n\t[\"opFen\"] = 1,\r\n\t[\"opQuillon\"] = 1,\r\n"
              "\t[\"Ink\"] = 1,\r\n\t[\"Nib\"] = 1,\r\n}\r\n");
    leaveFilter(list);
    EXPECT_EQ(seen(list).size(), 5);
    EXPECT_FALSE(find<QLineEdit>(list, "txtFilter").isVisible());
}

TEST_F(ListFilters, NoRowOutOfSightIsDeletedOrEdited)
{
    auto& form = openUsers({"Quill", "Fen", "Ink"});
    auto& list = users(form);
    filter(list, "in");
    EXPECT_EQ(list.currentRow(), 2) << "the selected row left, and a row in sight took its place";
    answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbListview").trigger(); });
    EXPECT_EQ(words(list), (QStringList{"Quill", "Fen"}));
    EXPECT_EQ(list.currentRow(), -1);
    const auto boxes =
        answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbListview").trigger(); });
    EXPECT_EQ(boxes.size(), 0);
    leaveFilter(list);
    EXPECT_EQ(list.currentRow(), 0);
    list.setRows({{{"Quill"}}});
    filter(list, "nobody");
    EXPECT_EQ(answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbListview").trigger(); }).size(),
              0)
        << "nor the only row";
}

TEST_F(ListFilters, ARowMovesPastTheHiddenOnesToTheNextInSight)
{
    auto& form = openRightClicks({"a1", "b1", "a2", "b2", "a3"});
    auto& list = find<RowList>(form, "lvwCustomRightClicks");
    const auto tool = [&form](const char* key) -> QAction& {
        return button(form, key, "tlbListviewMovement");
    };
    filter(list, "a");
    EXPECT_EQ(seen(list), (QStringList{"a1", "a2", "a3"}));
    clickRow(list, 4);
    EXPECT_FALSE(tool("MoveDown").isEnabled());
    tool("MoveUp").trigger();
    EXPECT_EQ(words(list), (QStringList{"a1", "b1", "a3", "a2", "b2"}));
    EXPECT_EQ(seen(list), (QStringList{"a1", "a3", "a2"})) << "the hidden ones stay hidden";
    EXPECT_EQ(list.currentRow(), 2);
    clickRow(list, 0);
    EXPECT_FALSE(tool("MoveUp").isEnabled());
    tool("MoveDown").trigger();
    EXPECT_EQ(words(list), (QStringList{"b1", "a3", "a1", "a2", "b2"}));
    tool("MoveBottom").trigger();
    EXPECT_EQ(words(list), (QStringList{"b1", "a3", "a2", "b2", "a1"}));
    tool("MoveTop").trigger();
    EXPECT_EQ(words(list), (QStringList{"a1", "b1", "a3", "a2", "b2"}));
    leaveFilter(list);
    EXPECT_TRUE(tool("MoveDown").isEnabled());
    tool("MoveDown").trigger();
    EXPECT_EQ(words(list), (QStringList{"b1", "a1", "a3", "a2", "b2"}));
}

TEST_F(ListFilters, ADiscardReadsAllRowsAndTheFilterStays)
{
    auto& form = openUsers({"Quill", "Fen", "Ink"});
    auto& list = users(form);
    filter(list, "n");
    QTest::keyClick(&find<QLineEdit>(list, "txtFilter"), Qt::Key_Return);
    EXPECT_TRUE(list.hasFocus());
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(words(list), (QStringList{"Quill", "Fen", "Ink"}));
    EXPECT_EQ(seen(list), (QStringList{"Fen", "Ink"}));
    EXPECT_EQ(list.currentRow(), 1);
}

TEST_F(ListFilters, OnlyTicksInSightAreSetTogether)
{
    auto& form = openRightClicks({"a", "b", "ab"});
    auto& list = find<RowList>(form, "lvwCustomRightClicks");
    filter(list, "b");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(list.rows()[0].checked);
    EXPECT_TRUE(list.rows()[1].checked);
    EXPECT_TRUE(list.rows()[2].checked);
    leaveFilter(list);
    list.select(0);
    filter(list, "b");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_FALSE(list.rows()[0].checked) << "nor by Space the row that was the current one";
}

TEST_F(ListFilters, AreThatOfTheListWhichIsNearestToTheFocus)
{
    auto& form = open("UserActions~Spells~SpellBook");
    auto& spells = find<RowList>(form, "lvwSpells");
    auto& phrases = find<RowList>(form, "lvwSpellPhrases");
    phrases.setFocus();
    pressFilterKeys(phrases);
    EXPECT_TRUE(phrases.findChild<QLineEdit*>("txtFilter"));
    EXPECT_FALSE(spells.findChild<QLineEdit*>("txtFilter"));
    auto* add = qobject_cast<QToolBar*>(&find<QToolBar>(form, "tlbSpells"))
                    ->widgetForAction(&button(form, "NEW", "tlbSpells"));
    add->setFocus();
    pressFilterKeys(*add);
    EXPECT_TRUE(find<QLineEdit>(spells, "txtFilter").hasFocus());
}

TEST_F(ListFilters, StandBelowTheCaptionsAndLeaveAListWithoutCaptionsAsItWas)
{
    for (const bool captions : {true, false}) {
        RowList list("lvwSample", captions ? QStringList{"Text"} : QStringList(), false);
        std::vector<CellRow> rows;
        for (int row = 0; row < 40; ++row)
            rows.push_back({{"row " + std::to_string(row)}});
        list.setRows(rows);
        list.resize(200, 200);
        list.show();
        const QRect before = list.viewport()->geometry();
        list.openFilter();
        auto& line = find<QLineEdit>(list, "txtFilter");
        EXPECT_TRUE(line.isVisible());
        const QRect place(line.mapTo(&list, QPoint()), line.size());
        EXPECT_EQ(place.bottom() + 1, list.viewport()->geometry().top()) << "it covers no row";
        EXPECT_GE(place.top(), before.top()) << "nor a caption";
        list.select(39);
        list.scrollToBottom();
        EXPECT_LE(list.visualRect(list.model()->index(39, 0)).bottom(), list.viewport()->height());
        leaveFilter(list);
        EXPECT_EQ(list.viewport()->geometry(), before);
        EXPECT_EQ(list.isHeaderHidden(), !captions);
    }
}

TEST_F(ListFilters, OfAGridFindWhatItsBlankCellsStandFor)
{
    auto& list = find<ListView>(open("Security~Kicks~Permissions"), "lvwPermissions");
    filter(list, "unban operator vip");
    const auto rows = list.shownRows();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(list.model()->index(rows[0], 2).data(), "VIP") << "by Operator on VIP";
    EXPECT_EQ(list.model()->index(rows[1], 2).data(), "Operator") << "and by VIP on Operator";
}

TEST_F(ListFilters, TypingFindsTheRowThatBeginsSoElseTheOneThatHoldsIt)
{
    const auto typing = [](const QString& text) {
        RowList list("lvwSample", {"Nick", "Why"}, false);
        list.setRows({{{"Ann", "spam"}}, {{"Bob", "flood"}}, {{"Barbara", "clones"}}, {{"Flo", "a bot"}}});
        list.show();
        QTest::keyClicks(&list, text);
        return list.currentRow();
    };
    QApplication::setKeyboardInputInterval(60'000); // however slow the machine is
    EXPECT_EQ(typing("bar"), 2);
    EXPECT_EQ(typing("flo"), 1) << "in any column";
    EXPECT_EQ(typing("bot"), 3) << "inside a cell where none begins so";
    EXPECT_EQ(typing("bb"), 2) << "one letter again goes on to the next";
    EXPECT_EQ(typing("xyz"), 0);
}

} // namespace
} // namespace quillfen
