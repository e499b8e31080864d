#include "shell/kit/editdialog.h"
#include "shell/kit/textedit.h"
#include "support/formtest.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWheelEvent>

namespace quillfen {
namespace {

const QColor lightRed(0xFF, 0x80, 0x80);

struct Expected
{
    EditForm form;
    const char* name;
    const char* inputs; ///< T text, N number, C combo box
    int mode;
    const char* required; ///< the places of the required fields
    bool mayAdd;
};

const std::vector<Expected> expectedModes = {
    {EditForm::OneFields, "frmGlobalEditOneFields", "T", 0, "0", false},
    {EditForm::OneFields, "frmGlobalEditOneFields", "T", 1, "0", true},
    {EditForm::OneUpDown, "frmGlobalEditOneUpDown", "N", 0, "0", false},
    {EditForm::OneUpDown, "frmGlobalEditOneUpDown", "N", 1, "0", true},
    {EditForm::TwoFields, "frmGlobalEditTwoFields", "TT", 0, "", true},
    {EditForm::TwoFields, "frmGlobalEditTwoFields", "TT", 1, "01", true},
    {EditForm::TwoFields, "frmGlobalEditTwoFields", "TT", 2, "01", false},
    {EditForm::TwoUpDowns, "frmGlobalEditTwoUpDowns", "NN", 0, "0", false},
    {EditForm::TwoUpDowns, "frmGlobalEditTwoUpDowns", "NN", 1, "01", false},
    {EditForm::TwoUpDowns, "frmGlobalEditTwoUpDowns", "NN", 2, "1", true},
    {EditForm::ThreeFields, "frmGlobalEditThreeFields", "TTT", 0, "0", false},
    {EditForm::ThreeFields, "frmGlobalEditThreeFields", "TTT", 1, "1", true},
    {EditForm::ThreeFields, "frmGlobalEditThreeFields", "TTT", 2, "02", true},
    {EditForm::ThreeFields, "frmGlobalEditThreeFields", "TTT", 3, "12", true},
    {EditForm::ThreeFields, "frmGlobalEditThreeFields", "TTT", 4, "012", true},
    {EditForm::ThreeFields, "frmGlobalEditThreeFields", "TTT", 5, "012", false},
    {EditForm::ThreeCombos, "frmGlobalEditThreeCombos", "CCC", 0, "0", false},
    {EditForm::ThreeCombos, "frmGlobalEditThreeCombos", "CCC", 1, "1", true},
    {EditForm::ThreeCombos, "frmGlobalEditThreeCombos", "CCC", 2, "02", true},
    {EditForm::ThreeCombos, "frmGlobalEditThreeCombos", "CCC", 3, "12", true},
    {EditForm::ThreeCombos, "frmGlobalEditThreeCombos", "CCC", 4, "012", true},
    {EditForm::ThreeCombos, "frmGlobalEditThreeCombos", "CCC", 5, "012", false},
    {EditForm::FourFields, "frmGlobalEditFourFields", "TTTT", 0, "0", false},
    {EditForm::FourFields, "frmGlobalEditFourFields", "TTTT", 1, "1", true},
    {EditForm::FourFields, "frmGlobalEditFourFields", "TTTT", 2, "02", true},
    {EditForm::FourFields, "frmGlobalEditFourFields", "TTTT", 3, "12", true},
    {EditForm::FourFields, "frmGlobalEditFourFields", "TTTT", 4, "012", true},
    {EditForm::FourFields, "frmGlobalEditFourFields", "TTTT", 5, "0123", false},
    {EditForm::FourFields, "frmGlobalEditFourFields", "TTTT", 6, "0123", true},
    {EditForm::FourCombos, "frmGlobalEditFourCombos", "CCCC", 0, "0", false},
    {EditForm::FourCombos, "frmGlobalEditFourCombos", "CCCC", 1, "1", true},
    {EditForm::FourCombos, "frmGlobalEditFourCombos", "CCCC", 2, "02", true},
    {EditForm::FourCombos, "frmGlobalEditFourCombos", "CCCC", 3, "12", true},
    {EditForm::FourCombos, "frmGlobalEditFourCombos", "CCCC", 4, "012", true},
    {EditForm::FourCombos, "frmGlobalEditFourCombos", "CCCC", 5, "012", false},
    {EditForm::FourCombos, "frmGlobalEditFourCombos", "CCCC", 6, "0123", true},
    {EditForm::FourCombos, "frmGlobalEditFourCombos", "CCCC", 7, "0123", false},
    {EditForm::TextCombo, "frmGlobalEditTextCombo", "TC", 0, "", false},
    {EditForm::TextCombo, "frmGlobalEditTextCombo", "TC", 1, "0", true},
    {EditForm::TextCombo, "frmGlobalEditTextCombo", "TC", 2, "1", true},
    {EditForm::TwoTextCombo, "frmGlobalEditTwoTextCombo", "TTC", 0, "", false},
    {EditForm::TwoTextCombo, "frmGlobalEditTwoTextCombo", "TTC", 1, "0", true},
    {EditForm::TwoTextCombo, "frmGlobalEditTwoTextCombo", "TTC", 2, "2", true},
    {EditForm::TwoTextCombo, "frmGlobalEditTwoTextCombo", "TTC", 3, "02", true},
    {EditForm::TwoTextCombo, "frmGlobalEditTwoTextCombo", "TTC", 4, "012", true},
    {EditForm::OneTextTwoCombo, "frmGlobalEditOneTextTwoCombo", "TCC", 0, "", false},
    {EditForm::OneTextTwoCombo, "frmGlobalEditOneTextTwoCombo", "TCC", 1, "0", true},
    {EditForm::OneTextTwoCombo, "frmGlobalEditOneTextTwoCombo", "TCC", 2, "1", true},
    {EditForm::OneTextTwoCombo, "frmGlobalEditOneTextTwoCombo", "TCC", 3, "01", true},
    {EditForm::OneTextTwoCombo, "frmGlobalEditOneTextTwoCombo", "TCC", 4, "012", true},
    {EditForm::UpDownCombo, "frmGlobalEditUpDownCombo", "NC", 0, "0", false},
    {EditForm::UpDownCombo, "frmGlobalEditUpDownCombo", "NC", 1, "01", false},
};

class EditDialogTest : public test::FormTest
{
protected:
    static EditRequest request(EditForm form, int mode, EditResult gEditResult = EditResult::Add)
    {
        return {form,
                "Add Thing",
                gEditResult,
                mode,
                {"One", "Two", "Three", "Four"},
                {},
                {{"a", "b"}, {"a", "b"}, {"a", "b"}, {"a", "b"}},
                {{0, 9}, {0, 9}}};
    }

    /// The inputs in field order.
    static QList<QWidget*> inputs(const QDialog& dialog, const char* kinds)
    {
        QList<QWidget*> found;
        int texts = 0;
        int numbers = 0;
        int combos = 0;
        for (const char* kind = kinds; *kind != '\0'; ++kind) {
            QString name;
            if (*kind == 'T')
                name = QString("txtTextBox(%1)").arg(texts++);
            else if (*kind == 'N')
                name = QString("updUpDown(%1)").arg(numbers++);
            else
                name = QString("cboComboBox(%1)").arg(combos++);
            found.append(dialog.findChild<QWidget*>(name));
        }
        return found;
    }

    static void fill(QWidget& input, const QString& text)
    {
        if (auto* combo = qobject_cast<QComboBox*>(&input))
            combo->setCurrentIndex(combo->findText(text));
        else if (auto* edit = qobject_cast<QLineEdit*>(&input))
            edit->setText(text);
        else
            input.findChild<QLineEdit*>()->setText(text);
    }

    static QPushButton& command(QWidget& dialog, const char* name) { return find<QPushButton>(dialog, name); }
};

TEST_F(EditDialogTest, EachModeColoursItsRequiredFieldsAndMayOrMayNotAdd)
{
    for (const Expected& each : expectedModes) {
        const std::string what = std::string(each.name) + " mode " + std::to_string(each.mode);
        EditDialog dialog(request(each.form, each.mode));
        EXPECT_EQ(dialog.objectName(), each.name);
        const auto fields = inputs(dialog, each.inputs);
        std::string required;
        for (int field = 0; field < fields.size(); ++field) {
            ASSERT_TRUE(fields[field]) << what;
            if (fields[field]->palette().color(QPalette::Base) == lightRed) {
                required += std::to_string(field);
                EXPECT_EQ(fields[field]->palette().color(QPalette::Text), QColor(Qt::black)) << what;
                EXPECT_NE(fields[field]->palette().color(QPalette::Button), lightRed)
                    << what << ": the arrows stay readable";
            }
        }
        EXPECT_EQ(required, each.required) << what;
        EXPECT_FALSE(command(dialog, "cmdOK").isEnabled()) << what;
        EXPECT_FALSE(command(dialog, "cmdAdd").isEnabled()) << what;
        fill(*fields[0], *each.inputs == 'N' ? "5" : "a");
        EXPECT_TRUE(command(dialog, "cmdOK").isEnabled()) << what;
        EXPECT_EQ(command(dialog, "cmdAdd").isEnabled(), each.mayAdd) << what;
    }
    EXPECT_EQ(expectedModes.size(), 52U);
}

TEST_F(EditDialogTest, AModeOutsideItsRowColoursNothing)
{
    EditDialog dialog(request(EditForm::TwoFields, 9));
    for (auto* input : inputs(dialog, "TT"))
        EXPECT_NE(input->palette().color(QPalette::Base), lightRed);
}

TEST_F(EditDialogTest, HasItsTitleLabelsAndButtons)
{
    EditDialog dialog(request(EditForm::TwoTextCombo, 4));
    EXPECT_EQ(dialog.windowTitle(), "Add Thing");
    for (int field = 0; field < 3; ++field) {
        auto& label = find<QLabel>(dialog, QString("lblLabel(%1)").arg(field));
        EXPECT_EQ(label.text(), QStringList({"One", "Two", "Three"})[field]);
        EXPECT_EQ(label.buddy(), inputs(dialog, "TTC")[field]);
        EXPECT_EQ(label.buddy()->accessibleName(), label.text());
    }
    EXPECT_TRUE(dialog.findChild<QWidget*>("fraFrame"));
    EXPECT_EQ(command(dialog, "cmdAdd").text(), "Add");
    EXPECT_EQ(command(dialog, "cmdCancel").text(), "Cancel");
}

TEST_F(EditDialogTest, ClearingFieldZeroTakesTheButtonsOut)
{
    EditDialog dialog(request(EditForm::OneFields, 1));
    auto& box = find<QLineEdit>(dialog, "txtTextBox(0)");
    box.setText("x");
    box.clear();
    EXPECT_FALSE(command(dialog, "cmdOK").isEnabled());
    EXPECT_FALSE(command(dialog, "cmdAdd").isEnabled());
}

TEST_F(EditDialogTest, OpensWithOkWhenFieldZeroIsFilledAndKeepsAddOutWhenItEdits)
{
    EditRequest edit = request(EditForm::TwoFields, 1, EditResult::Edit);
    edit.values = {"old", "text"};
    EditDialog dialog(edit);
    EXPECT_TRUE(command(dialog, "cmdOK").isEnabled());
    EXPECT_FALSE(command(dialog, "cmdAdd").isEnabled());
    command(dialog, "cmdOK").click();
    EXPECT_EQ(dialog.answer().gEditResult, EditResult::Ok);
    EXPECT_EQ(dialog.answer().gEditValues, (std::vector<std::string>{"old", "text"}));
}

TEST_F(EditDialogTest, AnEmptyRequiredFieldKeepsItOpenWithoutAWord)
{
    EditDialog dialog(request(EditForm::TwoFields, 1));
    dialog.show();
    find<QLineEdit>(dialog, "txtTextBox(0)").setText("x");
    command(dialog, "cmdOK").click();
    EXPECT_TRUE(dialog.isVisible());
    command(dialog, "cmdAdd").click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.answer().gEditResult, EditResult::None);
    EXPECT_TRUE(dialog.answer().gEditValues.empty());
    find<QLineEdit>(dialog, "txtTextBox(1)").setText("y");
    command(dialog, "cmdOK").click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.answer().gEditResult, EditResult::Ok);
}

TEST_F(EditDialogTest, CancelEscapeAndTheClosedWindowTakeNothing)
{
    const auto answerAfter = [this](const std::function<void(EditDialog&)>& leave) {
        EditDialog dialog(request(EditForm::OneFields, 1));
        dialog.show();
        find<QLineEdit>(dialog, "txtTextBox(0)").setText("x");
        leave(dialog);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(dialog.answer().gEditResult, EditResult::None);
        EXPECT_TRUE(dialog.answer().gEditValues.empty());
        return dialog.answer().byCancel;
    };
    EXPECT_TRUE(answerAfter([](EditDialog& dialog) { command(dialog, "cmdCancel").click(); }));
    EXPECT_FALSE(answerAfter([](EditDialog& dialog) { dialog.close(); }));
    EXPECT_FALSE(answerAfter([](EditDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }));
}

TEST_F(EditDialogTest, AddThreeTimesAndThenOkGivesFourRowsInThatOrder)
{
    std::vector<std::string> rows;
    int shown = 0;
    test::withModal(
        [&] {
            addRows(nullptr, request(EditForm::OneFields, 1),
                    [&rows](const std::vector<std::string>& values) { rows.push_back(values.at(0)); });
        },
        [&](QWidget& dialog) {
            auto& box = find<QLineEdit>(dialog, "txtTextBox(0)");
            EXPECT_EQ(box.text(), "") << "a fresh dialog each time";
            box.setText(QString("row %1").arg(++shown));
            command(dialog, shown < 4 ? "cmdAdd" : "cmdOK").click();
        });
    EXPECT_EQ(rows, (std::vector<std::string>{"row 1", "row 2", "row 3", "row 4"}));
}

TEST_F(EditDialogTest, ClosingTheWindowEndsTheAddLoop)
{
    int rows = 0;
    int shown = 0;
    test::withModal(
        [&] { addRows(nullptr, request(EditForm::OneFields, 1), [&rows](const auto&) { ++rows; }); },
        [&shown](QWidget& dialog) {
            find<QLineEdit>(dialog, "txtTextBox(0)").setText("x");
            if (++shown == 1)
                command(dialog, "cmdAdd").click();
            else
                dialog.close();
        });
    EXPECT_EQ(rows, 1);
}

TEST_F(EditDialogTest, ValuesComeInFieldOrder)
{
    EditRequest edit = request(EditForm::UpDownCombo, 1, EditResult::Edit);
    edit.values = {"7", "b"};
    EditDialog dialog(edit);
    auto& number = find<QAbstractSpinBox>(dialog, "updUpDown(0)");
    QTest::keyClick(&number, Qt::Key_Up);
    QTest::keyClick(&number, Qt::Key_Up);
    QTest::keyClick(&number, Qt::Key_Up); // the caller's range ends at 9
    find<QComboBox>(dialog, "cboComboBox(0)").setCurrentIndex(0);
    command(dialog, "cmdOK").click();
    EXPECT_EQ(dialog.answer().gEditValues, (std::vector<std::string>{"9", "a"}));
}

TEST_F(EditDialogTest, EachOfTwoNumbersHasTheCallersRangeAtItsPlace)
{
    EditRequest edit = request(EditForm::TwoUpDowns, 1, EditResult::Edit);
    edit.values = {"3", "8"};
    edit.ranges = {{2, 4}, {7, 9}};
    const auto after = [&edit](Qt::Key arrow) {
        EditDialog dialog(edit);
        for (const char* number : {"updUpDown(0)", "updUpDown(1)"}) {
            for (int press = 0; press < 3; ++press)
                QTest::keyClick(&find<QAbstractSpinBox>(dialog, number), arrow);
        }
        command(dialog, "cmdOK").click();
        return dialog.answer().gEditValues;
    };
    EXPECT_EQ(after(Qt::Key_Up), (std::vector<std::string>{"4", "9"}));
    EXPECT_EQ(after(Qt::Key_Down), (std::vector<std::string>{"2", "7"}));
}

TEST_F(EditDialogTest, EveryByteGoesThroughAField)
{
    std::string bytes;
    for (int byte = 0x20; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EditRequest edit = request(EditForm::OneFields, 0, EditResult::Edit);
    edit.values = {bytes};
    EditDialog dialog(edit);
    command(dialog, "cmdOK").click();
    EXPECT_EQ(dialog.answer().gEditValues.at(0), bytes);
}

TEST_F(EditDialogTest, TheHabitualModesGoByTheCountOfInputs)
{
    for (const EditForm one : {EditForm::OneFields, EditForm::OneUpDown}) {
        EXPECT_EQ(habitualAddMode(one), 1);
        EXPECT_EQ(habitualEditMode(one), 0);
    }
    for (const EditForm two :
         {EditForm::TwoFields, EditForm::TwoUpDowns, EditForm::TextCombo, EditForm::UpDownCombo}) {
        EXPECT_EQ(habitualAddMode(two), 1);
        EXPECT_EQ(habitualEditMode(two), 2);
    }
    for (const EditForm three :
         {EditForm::ThreeFields, EditForm::TwoTextCombo, EditForm::OneTextTwoCombo, EditForm::ThreeCombos}) {
        EXPECT_EQ(habitualAddMode(three), 4);
        EXPECT_EQ(habitualEditMode(three), 5);
    }
}

TEST_F(EditDialogTest, ARequiredComboBoxShowsItsColourAsFlatAsATextBoxDoes)
{
    EditRequest edit = request(EditForm::TextCombo, 2);
    edit.labels = {"", ""};
    EditDialog dialog(edit);
    dialog.show();
    auto& combo = find<QComboBox>(dialog, "cboComboBox(0)");
    const QImage picture = combo.grab().toImage();
    for (const double height : {0.3, 0.5, 0.7})
        EXPECT_EQ(picture.pixelColor(picture.width() / 2, static_cast<int>(picture.height() * height)),
                  lightRed);
    EXPECT_NE(combo.view()->palette().color(QPalette::Base), lightRed) << "only the field is asked for";
}

TEST_F(EditDialogTest, IsAsWideAsItsTextsUpToTheWindowAndShowsTheirBeginnings)
{
    QWidget behind;
    behind.resize(900, 600);
    const auto widthWith = [&](int characters) {
        EditRequest wide = request(EditForm::OneFields, 0, EditResult::Edit);
        wide.values = {std::string(static_cast<std::size_t>(characters), 'w')};
        const EditDialog dialog(wide, &behind);
        const auto* box = dialog.findChild<QLineEdit*>("txtTextBox(0)");
        EXPECT_EQ(box->cursorPosition(), 0);
        return dialog.width();
    };
    EXPECT_EQ(widthWith(1), 420);
    const int wide = widthWith(50);
    EXPECT_GT(wide, 420);
    EXPECT_GE(wide, 50 * behind.fontMetrics().horizontalAdvance('w'));
    EXPECT_EQ(widthWith(5000), 900);
}

TEST_F(EditDialogTest, AnOwnersAmpersandIsShownAndMakesNoKey)
{
    EditRequest edit = request(EditForm::OneFields, 0, EditResult::Edit);
    edit.labels = {"R&D Tag"};
    EditDialog dialog(edit);
    dialog.show();
    const auto& label = find<QLabel>(dialog, "lblLabel(0)");
    EXPECT_EQ(label.text(), "R&&D Tag") << "as labels spell an ampersand";
    EXPECT_EQ(label.buddy()->accessibleName(), "R&D Tag");
    find<QPushButton>(dialog, "cmdCancel").setFocus();
    QTest::keyClick(&dialog, Qt::Key_D, Qt::AltModifier);
    EXPECT_FALSE(label.buddy()->hasFocus());
}

TEST_F(EditDialogTest, AVeryLongLabelIsCutAndItsToolTipTellsItAll)
{
    EditRequest edit = request(EditForm::TwoFields, 0, EditResult::Edit);
    edit.labels = {std::string(2000, 'w') + " <b>Client</b>", "Short"};
    EditDialog dialog(edit);
    dialog.show();
    const auto& label = find<QLabel>(dialog, "lblLabel(0)");
    EXPECT_TRUE(label.text().startsWith("www"));
    EXPECT_LT(dialog.width(), 1000);
    EXPECT_TRUE(label.toolTip().contains("&lt;b&gt;Client")) << "shown as it is, not as markup";
    EXPECT_EQ(label.buddy()->accessibleName(), QString(2000, 'w') + " <b>Client</b>");
    EXPECT_EQ(find<QLabel>(dialog, "lblLabel(1)").toolTip(), "");
}

TEST_F(EditDialogTest, TheWheelOverAComboBoxWithoutFocusChangesNothing)
{
    EditRequest edit = request(EditForm::TextCombo, 1, EditResult::Edit);
    edit.values = {"x", "a"};
    EditDialog dialog(edit);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto& combo = find<QComboBox>(dialog, "cboComboBox(0)");
    const auto turn = [&combo] {
        QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&combo, &wheel);
        return combo.currentText();
    };
    EXPECT_EQ(turn(), "a");
    EXPECT_NE(combo.focusPolicy(), Qt::WheelFocus) << "else the wheel would focus it first";
    combo.setFocus();
    EXPECT_EQ(turn(), "b");
}

class TextEdit : public test::FormTest
{
protected:
    static void expectDiscardQuestion(const QList<test::SeenBox>& boxes)
    {
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_EQ(boxes[0].title, "Discard changes?");
        EXPECT_EQ(boxes[0].text, "Discard all unsaved changes?");
        EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    }

    std::string& text = hub.file("A.txt");

    static QPlainTextEdit& box(QWidget& dialog) { return find<QPlainTextEdit>(dialog, "txtTextBox"); }

    static QAction& tool(QWidget& dialog, const char* key)
    {
        return find<QAction>(find<QToolBar>(dialog, "tlbFormToolbar"), key);
    }

    static QString panel(QWidget& dialog)
    {
        return find<QStatusBar>(dialog, "stsStatusBar").findChildren<QLabel*>().constFirst()->text();
    }
};

TEST_F(TextEdit, ShowsTheFileAndSavesItUnchangedToTheByte)
{
    text = "one\r\n\r\ntwo \xA0\x80\r\n";
    TextEditDialog dialog(hub.files, "A.txt", TextEditDialog::Mode::Edit);
    EXPECT_EQ(dialog.objectName(), "frmGlobalTextEdit");
    EXPECT_EQ(dialog.windowTitle(), "Global Text Edit");
    EXPECT_EQ(find<QLineEdit>(dialog, "txtPath").text(), "A.txt");
    EXPECT_EQ(panel(dialog), "Controls = Clean");
    EXPECT_FALSE(tool(dialog, "SAVE").isEnabled());
    const std::string before = text;
    tool(dialog, "SAVE").setEnabled(true);
    tool(dialog, "SAVE").trigger();
    EXPECT_EQ(text, before);
    EXPECT_TRUE(dialog.isSaved());
}

TEST_F(TextEdit, KeepsEveryByte)
{
    text.clear();
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n')
            text += static_cast<char>(byte);
    }
    text += "\r\n";
    const std::string before = text;
    TextEditDialog dialog(hub.files, "A.txt", TextEditDialog::Mode::Edit);
    tool(dialog, "SAVE").setEnabled(true);
    tool(dialog, "SAVE").trigger();
    EXPECT_EQ(text, before);
}

TEST_F(TextEdit, IsDirtyAfterAChangeAndCleanAfterTheSave)
{
    text = "a\r\n";
    TextEditDialog dialog(hub.files, "A.txt", TextEditDialog::Mode::Edit);
    dialog.show();
    QTest::keyClicks(&box(dialog), "x");
    EXPECT_EQ(panel(dialog), "Controls = Dirty");
    EXPECT_FALSE(dialog.isSaved());
    tool(dialog, "SAVE").trigger();
    EXPECT_EQ(panel(dialog), "Controls = Clean");
    EXPECT_EQ(text, "xa\r\n");
    EXPECT_TRUE(dialog.close());
}

TEST_F(TextEdit, HasNoRestore)
{
    TextEditDialog dialog(hub.files, "A.txt", TextEditDialog::Mode::Edit);
    EXPECT_EQ(dialog.findChild<QAction*>("RESTORE"), nullptr);
}

TEST_F(TextEdit, ADiscardReloadsAndGoesClean)
{
    text = "a\r\n";
    TextEditDialog dialog(hub.files, "A.txt", TextEditDialog::Mode::Edit);
    dialog.show();
    QTest::keyClicks(&box(dialog), "x");
    expectDiscardQuestion(test::answering(QMessageBox::Cancel, [&] { tool(dialog, "DISCARD").trigger(); }));
    EXPECT_EQ(box(dialog).toPlainText(), "xa");
    test::answering(QMessageBox::Ok, [&] { tool(dialog, "DISCARD").trigger(); });
    EXPECT_EQ(box(dialog).toPlainText(), "a");
    EXPECT_EQ(panel(dialog), "Controls = Clean");
}

TEST_F(TextEdit, ClosingItDirtyAsksTheDiscardQuestion)
{
    TextEditDialog dialog(hub.files, "A.txt", TextEditDialog::Mode::Edit);
    dialog.show();
    QTest::keyClicks(&box(dialog), "x");
    expectDiscardQuestion(test::answering(QMessageBox::Cancel, [&] { dialog.close(); }));
    EXPECT_TRUE(dialog.isVisible());
    expectDiscardQuestion(test::answering(QMessageBox::Ok, [&] { dialog.close(); }));
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(TextEdit, ANewFileStartsEmptyWhateverStandsOnTheDisk)
{
    text = "old\r\n";
    TextEditDialog dialog(hub.files, "A.txt", TextEditDialog::Mode::New);
    EXPECT_EQ(box(dialog).toPlainText(), "");
    box(dialog).setPlainText("new");
    tool(dialog, "SAVE").trigger();
    EXPECT_EQ(text, "new\r\n");
}

TEST_F(TextEdit, ADiscardInANewFileShowsWhatStandsOnTheDiskUnderItsName)
{
    TextEditDialog dialog(hub.files, "New.txt", TextEditDialog::Mode::New);
    const auto discardOf = [&](const char* typed) {
        box(dialog).setPlainText(typed);
        test::answering(QMessageBox::Ok, [&] { tool(dialog, "DISCARD").trigger(); });
        EXPECT_EQ(panel(dialog), "Controls = Clean");
        return box(dialog).toPlainText();
    };
    EXPECT_EQ(discardOf("new"), "");
    EXPECT_FALSE(hub.has("New.txt"));
    hub.file("New.txt") = "old\r\n";
    EXPECT_EQ(discardOf("newer"), "old");
}

TEST_F(TextEdit, ATextOf5001LinesShowsAsEmpty)
{
    for (int line = 0; line < 5001; ++line)
        text += "x\r\n";
    TextEditDialog dialog(hub.files, "A.txt", TextEditDialog::Mode::Edit);
    EXPECT_EQ(box(dialog).toPlainText(), "");
}

TEST_F(TextEdit, WhatTheCodePageLacksCannotBeEntered)
{
    TextEditDialog dialog(hub.files, "A.txt", TextEditDialog::Mode::Edit);
    box(dialog).insertPlainText(QStringLiteral(u"a\u0416b\n\u20AC\U0001F600c"));
    EXPECT_EQ(box(dialog).toPlainText(), QStringLiteral(u"ab\n\u20ACc"));
}

TEST_F(TextEdit, AFailedSaveKeepsItOpenDirtyAndComplete)
{
    TextEditDialog dialog(hub.files, R"(Gone\A.txt)", TextEditDialog::Mode::Edit);
    dialog.show();
    QTest::keyClicks(&box(dialog), "x");
    const auto boxes = test::answering(QMessageBox::Ok, [&] { tool(dialog, "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(
        boxes[0].text.toStdString(),
        test::native("The text couldn't be saved. /hub/scripts/Morvaleth's Quillfen/Settings/Gone/A.txt: "
                     "No such file or directory. Nothing that you typed is lost: mend it and save again."));
    EXPECT_EQ(panel(dialog), "Controls = Dirty");
    EXPECT_EQ(box(dialog).toPlainText(), "x");
    EXPECT_FALSE(dialog.isSaved());
}

} // namespace
} // namespace quillfen
