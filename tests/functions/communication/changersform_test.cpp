#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

namespace quillfen {
namespace {

using test::answering;
using test::sameBytes;

struct ChangerWords
{
    const char* key;
    const char* form;
    const char* caption;
    const char* name;
    const char* list;
    const char* toolbar;
    const char* column;
    const char* label;
    const char* text;
};

class ChangerForms : public test::FormTest, public testing::WithParamInterface<ChangerWords>
{
protected:
    EditorForm& openForm() { return open(words.key); }
    RowList& list(EditorForm& form) const { return find<RowList>(form, words.list); }
    QAction& tool(EditorForm& form, const char* key) const { return button(form, key, words.toolbar); }

    std::string path(const char* file) const
    {
        return std::string("Communication/") + words.name + "/" + words.name + file;
    }

    std::string table(const char* rows) const
    {
        return std::string("t") + words.name + "Topics = {\r\n" + rows + "}\r\n";
    }

    /// Types a text into the dialog that comes up and presses one of its buttons.
    static void answerDialog(
        const std::function<void()>& action, const QString& text, const char* command,
        const std::function<void(QWidget&)>& look = [](QWidget&) {})
    {
        test::withModal(action, [&](QWidget& dialog) {
            look(dialog);
            find<QLineEdit>(dialog, "txtTextBox(0)").setText(text);
            find<QPushButton>(dialog, command).click();
        });
    }

    const ChangerWords words = GetParam();
    std::string& texts = hub.file(path("Topics.tbl"));
    std::string& settings = hub.file(path("Settings.tbl"));
};

INSTANTIATE_TEST_SUITE_P(
    Both, ChangerForms,
    testing::Values(ChangerWords{"Communication~TopicChanger", "frmCommunicationTopicChanger",
                                 "Communication ~ TopicChanger", "TopicChanger", "lvwTopics", "tlbTopics",
                                 "Topics", "Topics", "Topic"},
                    ChangerWords{"Communication~KickBarChanger", "frmCommunicationKickBarChanger",
                                 "Communication ~ KickBarChanger", "KickBarChanger", "lvwKickBars",
                                 "tlbKickBars", "KickBars", "KickBar Topics", "KickBar"}),
    [](const auto& each) { return std::string(each.param.name); });

TEST_P(ChangerForms, ShowDelayAndTexts)
{
    settings = "tX = {\r\n\tiDelay = 721,\r\n}\r\n";
    texts = table("\t\"one\",\r\n\t\"two\",\r\n");
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), words.form);
    EXPECT_EQ(form.windowTitle(), words.caption);
    EXPECT_EQ(find<QLineEdit>(form, "txtDelay").text(), "721");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Delay");
    EXPECT_EQ(shown(list(form)), (QStringList{"one", "two"}));
    EXPECT_EQ(list(form).model()->headerData(0, Qt::Horizontal).toString(), words.column);
    EXPECT_EQ(list(form).accessibleName(), words.label);
    EXPECT_FALSE(isDirty(form));
}

TEST_P(ChangerForms, KeepATypedDelayOutsideTheRangeWhichBindsItsArrows)
{
    auto& form = openForm();
    find<QLineEdit>(form, "txtDelay").selectAll();
    QTest::keyClicks(&find<QLineEdit>(form, "txtDelay"), "721");
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(
        sameBytes(settings, std::string("t") + words.name + "Settings = {\r\n\tiDelay = 721,\r\n}\r\n"));
    auto& arrows = find<QAbstractSpinBox>(form, "updDelay");
    arrows.stepBy(1);
    EXPECT_EQ(find<QLineEdit>(form, "txtDelay").text(), "720");
    arrows.stepBy(-999);
    EXPECT_EQ(find<QLineEdit>(form, "txtDelay").text(), "1");
}

TEST_P(ChangerForms, DeleteAndEditFollowTheRows)
{
    auto& form = openForm();
    EXPECT_TRUE(tool(form, "NEW").isEnabled());
    EXPECT_FALSE(tool(form, "DELETE").isEnabled());
    EXPECT_FALSE(tool(form, "EDIT").isEnabled());
    answerDialog([&] { tool(form, "NEW").trigger(); }, "x", "cmdOK");
    EXPECT_TRUE(tool(form, "DELETE").isEnabled());
    EXPECT_TRUE(tool(form, "EDIT").isEnabled());
}

TEST_P(ChangerForms, AddRowsOneAfterTheOtherWithoutACheckForDuplicates)
{
    auto& form = openForm();
    int round = 0;
    test::withModal([&] { tool(form, "NEW").trigger(); },
                    [&](QWidget& dialog) {
                        EXPECT_EQ(dialog.objectName(), "frmGlobalEditOneFields");
                        EXPECT_EQ(dialog.windowTitle(), QString("Add ") + words.text);
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(0)").text(), words.text);
                        find<QLineEdit>(dialog, "txtTextBox(0)").setText("same");
                        find<QPushButton>(dialog, ++round < 3 ? "cmdAdd" : "cmdOK").click();
                    });
    EXPECT_EQ(shown(list(form)), (QStringList{"same", "same", "same"}));
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(texts, table("\t\"same\",\r\n\t\"same\",\r\n\t\"same\",\r\n")));
}

TEST_P(ChangerForms, EditTheSelectedRowByButtonAndByDoubleClick)
{
    texts = table("\t\"one\",\r\n\t\"two\",\r\n");
    auto& form = openForm();
    clickRow(list(form), 1);
    answerDialog([&] { tool(form, "EDIT").trigger(); }, "zwei", "cmdOK",
                 [this](QWidget& dialog) {
                     EXPECT_EQ(dialog.windowTitle(), QString("Edit ") + words.text);
                     EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(0)").text(), "two");
                     EXPECT_FALSE(find<QPushButton>(dialog, "cmdAdd").isEnabled());
                 });
    answerDialog([&] { doubleClickRow(list(form), 0); }, "eins", "cmdOK");
    EXPECT_EQ(shown(list(form)), (QStringList{"eins", "zwei"}));
    EXPECT_TRUE(isDirty(form));
}

TEST_P(ChangerForms, ACancelledEditChangesNothing)
{
    texts = table("\t\"one\",\r\n");
    auto& form = openForm();
    clickRow(list(form), 0);
    answerDialog([&] { tool(form, "EDIT").trigger(); }, "x", "cmdCancel");
    EXPECT_EQ(shown(list(form)), QStringList{"one"});
    EXPECT_FALSE(isDirty(form));
}

TEST_P(ChangerForms, ADeleteAsksAndTheListMayBecomeEmpty)
{
    texts = table("\t\"one\",\r\n");
    auto& form = openForm();
    clickRow(list(form), 0);
    const auto boxes = answering(QMessageBox::Cancel, [&] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, QString("Delete %1?").arg(words.text));
    EXPECT_EQ(boxes[0].text, QString("Do you really want to delete this %1?").arg(words.text));
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(list(form).rows().size(), 1U);
    answering(QMessageBox::Ok, [&] { QTest::keyClick(&list(form), Qt::Key_Delete); });
    EXPECT_TRUE(list(form).isEmpty());
    EXPECT_FALSE(tool(form, "DELETE").isEnabled());
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(texts, table("")));
}

TEST_P(ChangerForms, TheBorrowedMenuServesTheList)
{
    texts = table("\t\"one\",\r\n");
    auto& form = openForm();
    clickRow(list(form), 0);
    answerDialog([this] { find<QAction>(window(), "mnuFirstAdd").trigger(); }, "two", "cmdOK");
    clickRow(list(form), 0);
    answerDialog([this] { find<QAction>(window(), "mnuFirstEdit").trigger(); }, "eins", "cmdOK");
    EXPECT_EQ(shown(list(form)), (QStringList{"eins", "two"}));
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstDelete").trigger(); });
    EXPECT_EQ(shown(list(form)), QStringList{"two"});
}

TEST_P(ChangerForms, ARightClickSelectsTheRowUnderThePointerAndShowsTheMenu)
{
    texts = table("\t\"one\",\r\n\t\"two\",\r\n");
    auto& form = openForm();
    const QPoint at = placeOf(list(form), 1).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, list(form).viewport()->mapToGlobal(at));
    QApplication::sendEvent(list(form).viewport(), &event);
    EXPECT_EQ(list(form).currentRow(), 1);
    EXPECT_TRUE(window().popUpMenu("mnuFirst")->isVisible());
    window().popUpMenu("mnuFirst")->hide();
}

TEST_P(ChangerForms, ARestoreSetsTheDelayToTenAndEmptiesTheList)
{
    settings = "tX = {\r\n\tiDelay = 5,\r\n}\r\n";
    texts = table("\t\"one\",\r\n");
    auto& form = openForm();
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(find<QLineEdit>(form, "txtDelay").text(), "10");
    EXPECT_TRUE(list(form).isEmpty());
    EXPECT_TRUE(isDirty(form));
    EXPECT_TRUE(sameBytes(texts, table("\t\"one\",\r\n")));
}

TEST_P(ChangerForms, WriteTheSettingsBeforeTheTexts)
{
    auto& form = openForm();
    hub.store.log.clear();
    button(form, "SAVE").setEnabled(true);
    button(form, "SAVE").trigger();
    EXPECT_EQ(hub.store.log, (std::vector<std::string>{"write " + hub.root + "/" + path("Settings.tbl"),
                                                       "write " + hub.root + "/" + path("Topics.tbl")}));
}

TEST_P(ChangerForms, AFailedSecondWriteKeepsTheFormDirty)
{
    auto& form = openForm();
    answerDialog([&] { tool(form, "NEW").trigger(); }, "x", "cmdOK");
    hub.store.failingCall = static_cast<int>(hub.store.log.size()) + 1;
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].text.contains("Topics.tbl"));
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(shown(list(form)), QStringList{"x"});
}

} // namespace
} // namespace quillfen
