// Lists of hundreds of rows: copied to and pasted from spreadsheets, and deleted together.
#include "shell/kit/rowlist.h"
#include "shell/kit/rowtext.h"
#include "support/dialogs.h"
#include "support/formtest.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QToolTip>

namespace quillfen {
namespace {

using test::answering;
using test::SeenBox;

TEST(RowText, IsALineARowAndATabBetweenCells)
{
    EXPECT_EQ(textOfRows({{"a", "b"}, {"c", ""}}), "a\tb\nc\t\n");
    EXPECT_EQ(rowsOfText("a\tb\nc\t\n"), (QList<QStringList>{{"a", "b"}, {"c", ""}}));
    EXPECT_EQ(rowsOfText("a\r\n\r\n\tb\rc"), (QList<QStringList>{{"a"}, {"", "b"}, {"c"}}));
    EXPECT_EQ(rowsOfText(""), QList<QStringList>());
}

TEST(RowText, QuotesACellThatWouldElseFallApartAndNoOther)
{
    EXPECT_EQ(textOfRows({{"a\tb", "say \"hi\""}}), "\"a\tb\"\tsay \"hi\"\n");
    EXPECT_EQ(rowsOfText("\"a\tb\"\tsay \"hi\"\n"), (QList<QStringList>{{"a\tb", "say \"hi\""}}));
    EXPECT_EQ(rowsOfText("\"one\ntwo \"\"quoted\"\"\"\tb"),
              (QList<QStringList>{{"one\ntwo \"quoted\"", "b"}}));
    EXPECT_EQ(rowsOfText("\"quoted\"\tb"), (QList<QStringList>{{"\"quoted\"", "b"}}));
    EXPECT_EQ(rowsOfText("\"never closed\tb"), (QList<QStringList>{{"\"never closed", "b"}}));
}

class ManyRows : public test::FormTest
{
protected:
    EditorForm& openUsers()
    {
        hub.file("Games/Globals/ScoreClearers.tbl") = "tScoreClearers = {\r\n\t[\"Quill\"] = 1,\r\n}\r\n";
        return open("Games~ScoreClearers");
    }

    static QString copied(ListView& list)
    {
        list.setFocus();
        QApplication::clipboard()->clear();
        QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text();
    }

    static QList<SeenBox> paste(ListView& list, const QString& text)
    {
        list.setFocus();
        QApplication::clipboard()->setText(text);
        return answering(QMessageBox::Ok,
                         [&list] { QTest::keyClick(&list, Qt::Key_V, Qt::ControlModifier); });
    }

    static void clickWith(ListView& list, int row, Qt::KeyboardModifier held)
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, held, placeOf(list, row).center());
    }

    static QList<SeenBox> pressDelete(ListView& list)
    {
        return answering(QMessageBox::Ok, [&list] { QTest::keyClick(&list, Qt::Key_Delete); });
    }
};

TEST_F(ManyRows, ArePastedThroughTheDialogsRulesAndTheRefusedOnesAreToldInOneBox)
{
    auto& form = openUsers();
    auto& list = find<RowList>(form, "lvwUsers");
    const auto boxes = paste(list, "Fen\r\nQUILL\r\nInk\r\nfen\r\na\tb\r\n");
    EXPECT_EQ(shown(list), (QStringList{"Quill", "Fen", "Ink"}));
    EXPECT_EQ(list.currentRow(), 2);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Rows not pasted");
    EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
    EXPECT_EQ(boxes[0].text, "3 of 5 rows not taken:\n\n"
                             "QUILL: Duplicate users are not permitted\n"
                             "fen: Duplicate users are not permitted\n"
                             "a, b: there are more cells than fields, which are 1");
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_EQ(hub.file("Games/Globals/ScoreClearers.tbl"),
              "tScoreClearers = {\r\n\t[\"Quill\"] = 1,\r\n\t[\"Fen\"] = 1,\r\n\t[\"Ink\"] = 1,\r\n}\r\n");
}

TEST_F(ManyRows, AllOfWhichAreRefusedLeaveTheFormClean)
{
    auto& form = openUsers();
    EXPECT_EQ(paste(find<RowList>(form, "lvwUsers"), "quill\n").size(), 1);
    EXPECT_FALSE(isDirty(form));
    EXPECT_EQ(paste(find<RowList>(form, "lvwUsers"), "").size(), 0) << "nothing to paste is nothing to tell";
    EXPECT_FALSE(isDirty(form));
}

TEST_F(ManyRows, NeedTheirRequiredFieldsAndTheEntriesThatTheDialogOffers)
{
    auto& form = open("CustomiseUser~CustomRightClick");
    auto& list = find<RowList>(form, "lvwCustomRightClicks");
    const auto boxes = paste(list, "Wave\tMaster\tHub\n"
                                   "\tMaster\tHub\n"
                                   "Greet\tMaster\n"
                                   "Call\tNobody\tHub\n"
                                   "Ring\tmaster\tHub\n");
    EXPECT_EQ(shown(list), QStringList{"Wave|Master|Hub"});
    EXPECT_FALSE(list.rows()[0].checked) << "as a row that was typed";
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].text, "4 of 5 rows not taken:\n\n"
                             ", Master, Hub: Right Click is missing\n"
                             "Greet, Master: Location is missing\n"
                             "Call, Nobody, Hub: Profile can't be \"Nobody\"\n"
                             "Ring, master, Hub: Profile can't be \"master\"");
}

TEST_F(ManyRows, KeepWhatAFieldKeepsOfAText)
{
    auto& list = find<RowList>(openUsers(), "lvwUsers");
    EXPECT_EQ(paste(list, QStringLiteral(u"\"two\nlines\"\n\u0416Ink\u20AC\n")).size(), 0);
    EXPECT_EQ(list.rows().at(1).cells[0], "two lines");
    EXPECT_EQ(list.rows().at(2).cells[0], "Ink\x80") << "what the code page lacks is dropped";
}

TEST_F(ManyRows, WhoseNameNoFileCanBearAreRefusedWithTheOthers)
{
    auto& form = open("UserActions~Spells~SpellBook");
    auto& list = find<RowList>(form, "lvwSpells");
    const auto before = list.rows().size();
    const auto boxes = paste(list, "hen\tmakes a hen\n../up\tleaves\n");
    EXPECT_EQ(list.rows().size(), before + 1);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].text.startsWith("1 of 2 rows not taken:\n\n../up, leaves: ../up "))
        << boxes[0].text.toStdString();
}

TEST_F(ManyRows, AreNotPastedWhileTheButtonOfNewRowsIsDark)
{
    auto& form = open("Games~Anagrams");
    auto& list = find<RowList>(form, "lvwWords");
    EXPECT_EQ(paste(list, "a word\n").size(), 0);
    EXPECT_TRUE(list.isEmpty());
    button(form, "OPEN", "tlbListview").trigger();
    const auto before = list.rows().size();
    paste(list, "a word\n");
    EXPECT_EQ(list.rows().size(), before + 1);
    EXPECT_TRUE(button(form, "SAVE", "tlbListview").isEnabled());
    EXPECT_FALSE(isDirty(form)) << "the words have a file and a SAVE of their own";
}

TEST_F(ManyRows, OfAListThatTakesNoneAreNotPastedAndItSaysSo)
{
    auto& list = find<RowList>(open("General~Bots"), "lvwBots");
    const auto before = list.rows();
    EXPECT_EQ(paste(list, "a\tb\tc\n").size(), 0);
    EXPECT_EQ(list.rows(), before);
    EXPECT_EQ(QToolTip::text(), "This list takes no rows from the clipboard");
    QToolTip::hideText();
}

TEST_F(ManyRows, OfThePortalArePastedAsTheyAreTyped)
{
    auto& form = open("Communication~Portal");
    auto& nicks = find<RowList>(form, "lvwNicks");
    nicks.setRows({});
    paste(nicks, "Ann\nBOB\n");
    EXPECT_EQ(shown(nicks), (QStringList{"ann", "bob"}));
    auto& hubs = find<RowList>(form, "lvwHubs");
    hubs.setRows({});
    const auto boxes = paste(hubs, "a\tb\t1\nc\td\t2\ne\tf\t3\n");
    EXPECT_EQ(shown(hubs), (QStringList{"a|b|1", "c|d|2"}));
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].text, "1 of 3 rows not taken:\n\ne, f, 3: the list is full");
}

TEST_F(ManyRows, AreCopiedAsTheirDialogsFieldsSoThatTheyCanBePasted)
{
    auto& form = open("Hyperlink~LinkOfTheWeek");
    auto& list = find<RowList>(form, "lvwWeek");
    list.setRows({{{"Monday", "08:15", "Main"}}, {{"Friday", "23:00", "PM"}}});
    list.select(0);
    clickWith(list, 1, Qt::ShiftModifier);
    const QString text = copied(list);
    EXPECT_EQ(text, "Monday\t08\t15\tMain Chat\nFriday\t23\t00\tPrivate Message\n");
    EXPECT_EQ(paste(list, text).size(), 0);
    EXPECT_EQ(shown(list),
              (QStringList{"Monday|08:15|Main", "Friday|23:00|PM", "Monday|08:15|Main", "Friday|23:00|PM"}));
}

TEST_F(ManyRows, OfAGridAreCopiedWithTheNamesThatTheirCellsLeaveOut)
{
    auto& list = find<ListView>(open("Security~Kicks~Permissions"), "lvwPermissions");
    list.select(6);
    EXPECT_EQ(copied(list), "Drop\tMaster\tOperator\tNo\n");
}

TEST_F(ManyRows, OfALongTextAreCopiedWhole)
{
    const std::string text(3000, 'x');
    RowList list("lvwSample", {"Text"}, false);
    list.setRows({{{text}}});
    list.show();
    EXPECT_EQ(copied(list), QString::fromStdString(text) + '\n');
}

TEST_F(ManyRows, AreDeletedWithOneQuestionAndTheRowBehindThemIsSelected)
{
    auto& form = openUsers();
    auto& list = find<RowList>(form, "lvwUsers");
    paste(list, "b\nc\nd\ne\n");
    clickRow(list, 1);
    clickWith(list, 3, Qt::ControlModifier);
    const auto boxes = pressDelete(list);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Exempt User?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this User?");
    EXPECT_EQ(shown(list), (QStringList{"Quill", "c", "e"}));
    EXPECT_EQ(list.selectedRows().size(), 1U);
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(pressDelete(list).size(), 1);
    EXPECT_TRUE(list.isEmpty()) << "this list may become empty";
}

TEST_F(ManyRows, KeepTheToldMinimumAlsoWhereAllAreSelected)
{
    auto& form = open("UserActions~Spells~SpellBook");
    auto& list = find<RowList>(form, "lvwSpells");
    list.setRows({{{"owl", "makes an owl"}}, {{"hen", "makes a hen"}}});
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    const auto boxes = pressDelete(list);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_EQ(boxes[0].text, "There must be a minimum of one Spell");
    EXPECT_EQ(list.rows().size(), 2U);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(ManyRows, OneOfWhichMayNotGoAllStayAndElseAllGoWithTheirFiles)
{
    for (const char* name : {"dragon", "owl"})
        hub.file(std::string("CustomiseUser/IntroOutro/Ascii/") + name + ".asc") = "picture\r\n";
    hub.file("CustomiseUser/IntroOutro/AsciiIntro.tbl") =
        "tAsciiIntro = {\r\n\t[\"bob\"] = \"owl\",\r\n}\r\n";
    auto& form = open("CustomiseUser~IntroOutro~Ascii");
    auto& pictures = find<RowList>(form, "lvwFiles");
    const auto deleteAll = [&pictures] {
        pictures.setFocus();
        QTest::keyClick(&pictures, Qt::Key_A, Qt::ControlModifier);
        return pressDelete(pictures);
    };
    auto boxes = deleteAll();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].text, "Cannot delete this Ascii Intro as it is in use");
    EXPECT_EQ(shown(pictures), (QStringList{"dragon", "owl"}));
    find<RowList>(form, "lvwAscii").setRows({});
    boxes = deleteAll();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Ascii Intro?");
    EXPECT_TRUE(pictures.isEmpty());
    for (const char* name : {"dragon", "owl"})
        EXPECT_EQ(hub.store.files.count(hub.root + "/CustomiseUser/IntroOutro/Ascii/" + name + ".asc"), 0U);
}

TEST_F(ManyRows, SeveralSelectedOnesAreNotMoved)
{
    auto& form = open("CustomiseUser~CustomRightClick");
    auto& list = find<RowList>(form, "lvwCustomRightClicks");
    list.setRows({{{"a", "Master", "Hub"}}, {{"b", "Master", "Hub"}}, {{"c", "Master", "Hub"}}});
    clickRow(list, 1);
    EXPECT_TRUE(button(form, "MoveUp", "tlbListviewMovement").isEnabled());
    clickWith(list, 2, Qt::ShiftModifier);
    for (const char* key : {"MoveTop", "MoveUp", "MoveDown", "MoveBottom"})
        EXPECT_FALSE(button(form, key, "tlbListviewMovement").isEnabled()) << key;
}

} // namespace
} // namespace quillfen
