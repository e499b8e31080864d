#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QCheckBox>
#include <QLineEdit>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::golden;
using test::sameBytes;
using test::SeenDialog;

constexpr const char* words[] = {"Joke", "Limerick", "Proverb", "Quotation"};

class CollectionForms : public test::FormTest
{
protected:
    EditorForm& openFor(const QString& word) { return open(qPrintable("UserActions~" + word + 's')); }
    static RowList& list(EditorForm& form, const QString& word)
    {
        return find<RowList>(form, "lvw" + word + 's');
    }
    static QAction& listButton(EditorForm& form, const char* key, const QString& word)
    {
        return button(form, key, qPrintable("tlb" + word + 's'));
    }
    std::string& file(const QString& word, const char* name)
    {
        const std::string each = word.toStdString();
        return hub.file("UserActions/" + each + "s/" + each + name);
    }
};

TEST_F(CollectionForms, ShowTheirFiles)
{
    for (const QString word : words) {
        auto& form = openFor(word);
        EXPECT_EQ(form.objectName(), "frmUserActions" + word + 's');
        EXPECT_EQ(form.windowTitle(), "User Actions ~ " + word + 's');
        EXPECT_EQ(find<QCheckBox>(form, "chkManualControl").text(), "Manual Control");
        EXPECT_EQ(find<QCheckBox>(form, "chkSendToAll").text(), "Send To All");
        EXPECT_FALSE(find<QCheckBox>(form, "chkManualControl").isChecked());
        EXPECT_TRUE(find<QCheckBox>(form, "chkSendToAll").isChecked());
        EXPECT_EQ(list(form, word).model()->headerData(0, Qt::Horizontal), word + 's');
        EXPECT_EQ(list(form, word).rows().size(), 1U);
        EXPECT_FALSE(isDirty(form));
    }
    EXPECT_EQ(find<QLineEdit>(openFor("Joke"), "txtDelay(0)").text(), "103");
    EXPECT_EQ(find<QLineEdit>(openFor("Limerick"), "txtDelay(0)").text(), "93");
    EXPECT_EQ(find<QLineEdit>(openFor("Proverb"), "txtDelay(0)").text(), "73");
    EXPECT_EQ(find<QLineEdit>(openFor("Quotation"), "txtDelay(0)").text(), "89");
}

TEST_F(CollectionForms, AreSavedInTheirOwnOrder)
{
    for (const QString word : words) {
        auto& form = openFor(word);
        find<QCheckBox>(form, "chkManualControl").click();
        find<QCheckBox>(form, "chkSendToAll").click();
        QTest::keyClick(&find<NumberBox>(form, "updDelay(0)"), Qt::Key_Up);
        const auto dialogs =
            entering({{{"first line|second line"}}}, [&] { listButton(form, "NEW", word).trigger(); });
        EXPECT_EQ(dialogs, (QList<SeenDialog>{{"frmGlobalEditOneFields", "Add " + word, {word}, {""}}}));
        EXPECT_TRUE(isDirty(form));
        hub.store.log.clear();
        button(form, "SAVE").trigger();
        EXPECT_FALSE(isDirty(form));
        const std::string each = word.toStdString();
        const std::string written = "write " + hub.root + "/UserActions/" + each + "s/" + each;
        EXPECT_EQ(hub.store.log, (std::vector<std::string>{written + "Settings.tbl", written + "s.tbl"}));
        const std::string name = "useractions/" + word.toStdString();
        EXPECT_TRUE(sameBytes(file(word, "Settings.tbl"), golden(name + "Settings.save.tbl")));
        EXPECT_TRUE(sameBytes(file(word, "s.tbl"), golden(name + "s.save.tbl")));
    }
}

TEST_F(CollectionForms, TheDelaysArrowsKeepTheirRangeAndAnyOtherNumberStaysUntilTheyAreTouched)
{
    for (const QString word : words) {
        file(word, "Settings.tbl") = "t" + word.toStdString() + "Settings = {\r\n\tiDelay = 5,\r\n}\r\n";
        auto& form = openFor(word);
        auto& delay = find<NumberBox>(form, "updDelay(0)");
        EXPECT_EQ(delay.text(), "5");
        QTest::keyClick(&delay, Qt::Key_Down);
        EXPECT_EQ(delay.text(), "10");
        QTest::keyClick(&delay, Qt::Key_Down);
        EXPECT_EQ(delay.text(), "10");
        delay.setText("720");
        QTest::keyClick(&delay, Qt::Key_Up);
        EXPECT_EQ(delay.text(), "720");
    }
}

TEST_F(CollectionForms, ADoubleClickEdits)
{
    for (const QString word : words) {
        auto& form = openFor(word);
        const QString text = shown(list(form, word)).value(0);
        const auto dialogs = entering({{{"another"}}}, [&] { doubleClickRow(list(form, word), 0); });
        EXPECT_EQ(dialogs, (QList<SeenDialog>{{"frmGlobalEditOneFields", "Edit " + word, {word}, {text}}}));
        EXPECT_EQ(shown(list(form, word)), QStringList{"another"});
        EXPECT_TRUE(isDirty(form));
    }
}

TEST_F(CollectionForms, DeletingAsksAndNeverTakesTheLastRow)
{
    for (const QString word : words) {
        auto& form = openFor(word);
        list(form, word).select(0);
        const auto remove = [&] { listButton(form, "DELETE", word).trigger(); };
        const auto refusal = answering(QMessageBox::Ok, remove);
        ASSERT_EQ(refusal.size(), 1);
        EXPECT_EQ(refusal[0].title, "Cannot delete");
        EXPECT_EQ(refusal[0].text, "There must be a minimum of one " + word);
        EXPECT_FALSE(isDirty(form));
        list(form, word).append({{"another"}});
        const auto question = answering(QMessageBox::Ok, remove);
        ASSERT_EQ(question.size(), 1);
        EXPECT_EQ(question[0].title, "Delete " + word + '?');
        EXPECT_EQ(question[0].text, "Do you really want to delete this " + word + '?');
        EXPECT_EQ(question[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(shown(list(form, word)), QStringList{"another"});
        EXPECT_TRUE(isDirty(form));
    }
}

TEST_F(CollectionForms, ARestoreShowsTheDefaultsAndLeavesTheListAlone)
{
    for (const QString word : words) {
        auto& form = openFor(word);
        const QString delay = find<QLineEdit>(form, "txtDelay(0)").text();
        find<QCheckBox>(form, "chkManualControl").click();
        find<QCheckBox>(form, "chkSendToAll").click();
        QTest::keyClick(&find<NumberBox>(form, "updDelay(0)"), Qt::Key_Up);
        list(form, word).setRows({{{"mine"}}});
        answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
        EXPECT_FALSE(find<QCheckBox>(form, "chkManualControl").isChecked());
        EXPECT_TRUE(find<QCheckBox>(form, "chkSendToAll").isChecked());
        EXPECT_EQ(find<QLineEdit>(form, "txtDelay(0)").text(), delay);
        EXPECT_EQ(shown(list(form, word)), QStringList{"mine"});
        EXPECT_TRUE(isDirty(form));
    }
}

} // namespace
} // namespace quillfen
