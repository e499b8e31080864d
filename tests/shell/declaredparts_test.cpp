#include "declarations/declaration.h"
#include "shell/kit/editdialog.h"
#include "shell/kit/inputbox.h"
#include "shell/kit/permissiongridpart.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/ticklistpart.h"
#include "support/dialogs.h"
#include "support/formtest.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QRadioButton>
#include <QWheelEvent>

namespace quillfen {
namespace {

/// A form of one declared file of the settings that a test gives it.
class FormOf : public test::FormTest
{
protected:
    EditorForm& formOf(std::vector<Setting> settings, const std::string& rows)
    {
        file = {"A.tbl", "tSample", std::move(settings)};
        hub.file("A.tbl") = "tSample = {\r\n" + rows + "}\r\n";
        standIn(DeclaredSettings{[this] { return file; }});
        return open("Games~Anagrams");
    }

    std::string saved(EditorForm& form)
    {
        button(form, "SAVE").setEnabled(true);
        button(form, "SAVE").trigger();
        return hub.file("A.tbl");
    }

    TableFile file;
};

TEST_F(FormOf, ALetterShowsAsItsEntryAndIsSavedAsTheLetter)
{
    auto& form = formOf({setting::letter("sAction", "cboComboBox", "Action", "TempBan", {"Kick", "TempBan"})},
                        "\tsAction = \"K\",\r\n");
    auto& combo = find<QComboBox>(form, "cboComboBox");
    EXPECT_EQ(combo.currentText(), "Kick");
    EXPECT_FALSE(combo.isEditable());
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(combo.currentText(), "TempBan");
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(saved(form), "tSample = {\r\n\tsAction = \"T\",\r\n}\r\n");
    combo.setCurrentIndex(0);
    test::answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(combo.currentText(), "TempBan");
}

TEST_F(FormOf, ALetterOfNoEntryShowsAsNoChoice)
{
    auto& form = formOf({setting::letter("sAction", "cboComboBox", "Action", "TempBan", {"Kick", "TempBan"})},
                        "\tsAction = \"k\",\r\n");
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "");
    EXPECT_EQ(saved(form), "tSample = {\r\n\tsAction = \"\",\r\n}\r\n");
}

TEST_F(FormOf, AnOptionWithoutAKeyIsTheFirstAndNotTheDefault)
{
    auto& form = formOf({setting::options("iFormat", "optOption", "Format", 1, 0, {"Plain", "Long"})}, "");
    EXPECT_TRUE(find<QRadioButton>(form, "optOption(0)").isChecked());
    EXPECT_FALSE(find<QRadioButton>(form, "optOption(1)").isChecked());
}

TEST_F(FormOf, ADiscardTakesAChoiceBackAlsoWhereNoneWasMade)
{
    auto& form = formOf({setting::options("iFormat", "optOption", "Format", 1, 0, {"Plain", "Long"})},
                        "\tiFormat = 7,\r\n");
    auto& plain = find<QRadioButton>(form, "optOption(0)");
    auto& longer = find<QRadioButton>(form, "optOption(1)");
    longer.click();
    EXPECT_TRUE(isDirty(form));
    test::answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_FALSE(plain.isChecked());
    EXPECT_FALSE(longer.isChecked());
    longer.click();
    plain.click();
    EXPECT_FALSE(longer.isChecked()) << "one choice takes the other's place as before";
    EXPECT_EQ(saved(form), "tSample = {\r\n\tiFormat = 0,\r\n}\r\n");
}

TEST_F(FormOf, AnEmptiedNumberIsSavedAsZero)
{
    auto& form = formOf({setting::number("iDelay", "txtUpDown(0)", "Delay", 5, 1, 9),
                         setting::number("iTime", "txtUpDown(1)", "Time", 5, 1, 9)},
                        "\tiDelay = 3,\r\n\tiTime = 4,\r\n");
    find<QLineEdit>(form, "txtUpDown(0)").clear();
    find<QLineEdit>(form, "txtUpDown(1)").setText("  "); // blanks load as nothing, too
    EXPECT_EQ(saved(form), "tSample = {\r\n\tiDelay = 0,\r\n\tiTime = 0,\r\n}\r\n");
}

TEST_F(FormOf, ANumberThatIsSavedAsTypedMayBeSavedAsNothing)
{
    auto& form = formOf({setting::number("iDelay", "txtUpDown", "Delay", 5, 1, 9, setting::asTyped)},
                        "\tiDelay = 3,\r\n");
    find<QLineEdit>(form, "txtUpDown").clear();
    EXPECT_EQ(saved(form), "tSample = {\r\n\tiDelay = ,\r\n}\r\n");
}

/// The ways by which a text gets into a box without being typed.
enum class Entering
{
    Paste,
    Drop,
    InputMethod
};

void enter(QLineEdit& box, const QString& text, Entering how)
{
    box.selectAll();
    if (how == Entering::Paste) {
        QApplication::clipboard()->setText(text);
        box.paste();
    } else if (how == Entering::Drop) {
        QMimeData data;
        data.setText(text);
        QDragEnterEvent arrives(QPoint(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&box, &arrives);
        box.clear();
        QDropEvent drops(QPointF(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&box, &drops);
    } else {
        QInputMethodEvent composed;
        composed.setCommitString(text);
        QApplication::sendEvent(&box, &composed);
    }
}

TEST_F(FormOf, ALineEndNeverGetsIntoAValueOfOneLine)
{
    auto& form = formOf({setting::text("sText", "txtTextBox", "Text", ""),
                         setting::number("iDelay", "txtUpDown", "Delay", 5, 1, 9),
                         setting::entry("sEntry", "cboComboBox", "Entry", "", {"a"})},
                        "");
    for (const Entering how : {Entering::Paste, Entering::Drop, Entering::InputMethod}) {
        enter(find<QLineEdit>(form, "txtTextBox"), "one\r\ntwo\n", how);
        if (how != Entering::Drop) // which no number box takes
            enter(find<QLineEdit>(form, "txtUpDown"), "1\n2", how);
        enter(*find<QComboBox>(form, "cboComboBox").lineEdit(), "\r\nb\r\r\nc", how);
        EXPECT_EQ(saved(form), "tSample = {\r\n\tsText = \"one two \",\r\n\tiDelay = 1 2,\r\n"
                               "\tsEntry = \" b c\",\r\n}\r\n")
            << static_cast<int>(how);
    }
}

TEST_F(FormOf, ALineEndNeverGetsThroughAnEditDialog)
{
    EditDialog dialog({EditForm::UpDownCombo, "Edit", "E", 1, {"One", "Two"}, {"1", "a"}, {{"a"}}});
    EditDialog texts({EditForm::OneFields, "Edit", "E", 0, {"One"}, {"1"}});
    for (const Entering how : {Entering::Paste, Entering::InputMethod}) {
        for (EditDialog* each : {&dialog, &texts}) {
            auto& box = find<QLineEdit>(*each, "txtTextBox(0)");
            enter(box, "1\r\n\r\n2", how);
            EXPECT_EQ(box.text(), "1 2") << static_cast<int>(how);
        }
    }
}

TEST_F(FormOf, ALineEndNeverGetsThroughAnInputBox)
{
    for (const Entering how : {Entering::Paste, Entering::Drop, Entering::InputMethod}) {
        std::string answer;
        test::withModal([&answer] { answer = askText(nullptr, "Enter filename", "Name:"); },
                        [how](QWidget& modal) {
                            auto* box = qobject_cast<QInputDialog*>(&modal);
                            EXPECT_EQ(box->windowTitle(), "Enter filename");
                            EXPECT_EQ(box->labelText(), "Name:");
                            enter(*box->findChild<QLineEdit*>(), QStringLiteral(u"my\r\n\u0416file"), how);
                            box->accept();
                        });
        EXPECT_EQ(answer, "my file") << static_cast<int>(how);
    }
    std::string answer = "before";
    test::withModal([&answer] { answer = askText(nullptr, "Enter filename", "Name:"); },
                    [](QWidget& modal) {
                        qobject_cast<QInputDialog*>(&modal)->setTextValue("file");
                        modal.close();
                    });
    EXPECT_EQ(answer, "") << "of a box that was closed";
}

TEST_F(FormOf, TheWheelOverAComboBoxWithoutFocusChangesNothing)
{
    auto& form = formOf({setting::text("sText", "txtTextBox", "Text", ""),
                         setting::entry("sEntry", "cboComboBox(0)", "Entry", "", {"a", "b"}),
                         setting::letter("sLetter", "cboComboBox(1)", "Letter", "Kick", {"Kick", "Ban"}),
                         setting::profileKey("iProfile", "cboComboBox(2)", "Profile")},
                        "\tsEntry = \"a\",\r\n\tsLetter = \"K\",\r\n\tiProfile = 0,\r\n");
    for (const char* name : {"cboComboBox(0)", "cboComboBox(1)", "cboComboBox(2)"}) {
        auto& combo = find<QComboBox>(form, name);
        const QString before = combo.currentText();
        QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&combo, &wheel);
        EXPECT_EQ(combo.currentText(), before) << name;
    }
    EXPECT_FALSE(isDirty(form));
}

TEST_F(FormOf, ATextBoxWithALimitKeepsTheFirstOfWhatItHolds)
{
    auto& form = formOf({setting::text("sHint", "txtTextBox", "Hint", "*", 1)}, "\tsHint = \"a\",\r\n");
    auto& box = find<QLineEdit>(form, "txtTextBox");
    box.setCursorPosition(0);
    QTest::keyClick(&box, 'b');
    EXPECT_EQ(box.text(), "b");
    QTest::keyClick(&box, 'c');
    EXPECT_EQ(box.text(), "b");
    EXPECT_EQ(saved(form), "tSample = {\r\n\tsHint = \"b\",\r\n}\r\n");
}

TEST_F(FormOf, ARestoreLeavesAloneWhatIsKept)
{
    auto& form = formOf({notRestored(setting::text("sText", "txtTextBox", "Text", "x")),
                         setting::number("iNumber", "txtUpDown", "Number", 5, 1, 50)},
                        "\tsText = \"mine\",\r\n\tiNumber = 7,\r\n");
    test::answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox").text(), "mine");
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "5");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(FormOf, NamedFlagsAreACheckListWithoutTheirLetter)
{
    auto& form = formOf({setting::namedFlags("tBlock", "lvwBlocked", "Blocked", {"Active", "Passive"})},
                        "\ttBlock = {\r\n\t\tbPassive = 1,\r\n\t},\r\n");
    auto& list = find<RowList>(form, "lvwBlocked");
    EXPECT_EQ(list.rows(), (std::vector<CellRow>{{{"Active"}}, {{"Passive"}, true}}));
    clickTick(list, 0);
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(saved(form),
              "tSample = {\r\n\ttBlock = {\r\n\t\tbActive = 1,\r\n\t\tbPassive = 1,\r\n\t},\r\n}\r\n");
}

TEST_F(FormOf, UnitsToolTipsAndHeadingsAreShown)
{
    auto flag = setting::flag("bFlag", "chkCheckBox", "Flag", true);
    flag.toolTip = "a < b";
    auto& form = formOf({setting::number("iNumber", "txtUpDown", "Number", 5, 1, 50, {.unit = "Days"}), flag,
                         setting::profileFlags("tMain", "lvwMain", "Main", "Enabled Main")},
                        "");
    const auto labels = form.findChildren<QLabel*>();
    EXPECT_TRUE(
        std::any_of(labels.begin(), labels.end(), [](auto* label) { return label->text() == "Days"; }));
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox").toolTip(), "a < b");
    auto& main = find<RowList>(form, "lvwMain");
    EXPECT_FALSE(main.isHeaderHidden());
    EXPECT_EQ(main.model()->headerData(0, Qt::Horizontal), "Enabled Main");
}

TEST_F(FormOf, AGridMayNameEachTargetAndCarryTheProfilesKeys)
{
    const PermissionGrid grid = {{{"Do", "A.tbl", "tDo"}, {"Undo", "B.tbl", "tUndo"}}, 3};
    GridWords words;
    words.columns = {"Command", "By Profile", "On Profile", "Allow", "iProfileBy", "iProfileOn"};
    words.filters = false;
    words.namesTarget = true;
    PermissionGridPart part(grid, words, {hub.files, hub.profiles});
    const std::unique_ptr<QWidget> widget(part.widget());
    part.load();
    auto& list = find<QTreeView>(*widget, "lvwPermissions");
    EXPECT_EQ(shown(list), (QStringList{"Do|VIP|VIP|No", "Undo|VIP|VIP|No"}));
    EXPECT_EQ(list.model()->headerData(4, Qt::Horizontal), "iProfileBy");
    EXPECT_EQ(list.model()->index(1, 5).data(), "2");
    EXPECT_TRUE(list.isColumnHidden(4));
    EXPECT_TRUE(list.isColumnHidden(5));
}

TEST_F(FormOf, ATickListMayHaveALabelNoHelpAndTicksThatARestoreLeaves)
{
    hub.file("A.tbl") = "tA = {\r\n\tbMute = 1,\r\n\tbTalk = 0,\r\n}\r\n";
    TickList ticks{"lvwFilters", "Filters", {"A.tbl", "tA", ListFile::Form::Flags}};
    ticks.label = "Filtered";
    ticks.restoreTicks = false;
    TickListPart part(ticks, {hub.files, hub.profiles});
    const std::unique_ptr<QWidget> widget(part.widget());
    part.load();
    auto& list = find<RowList>(*widget, "lvwFilters");
    EXPECT_EQ(find<QLabel>(*widget, "").buddy(), &list);
    EXPECT_TRUE(list.isHeaderHidden());
    part.restore();
    EXPECT_EQ(list.rows(), (std::vector<CellRow>{{{"Mute", ""}, true}, {{"Talk", ""}}}));
    clickRow(list, 1);
    part.save();
    EXPECT_EQ(hub.file("A.tbl"), "tA = {\r\n\tbMute = 1,\r\n\tbTalk = 0,\r\n}\r\n");
}

TEST_F(FormOf, FlagsOfOneFrameStandInItTogether)
{
    auto& form = formOf({setting::number("iNumber", "txtUpDown", "Number", 5, 1, 50),
                         setting::flag("bA", "chkCheckBox(0)", "A", false, {.frame = "Tell"}),
                         setting::flag("bB", "chkCheckBox(1)", "B", false, {.frame = "Tell"}),
                         setting::flag("bC", "chkCheckBox(2)", "C", false, {.frame = "Ask"}),
                         setting::flag("bD", "chkCheckBox(3)", "D", false)},
                        "");
    QStringList captions;
    for (int at = 0; at < 4; ++at) {
        auto* frame = qobject_cast<QGroupBox*>(
            find<QCheckBox>(form, QString("chkCheckBox(%1)").arg(at)).parentWidget());
        captions.append(frame ? frame->title() : QString());
    }
    EXPECT_EQ(captions, (QStringList{"Tell", "Tell", "Ask", QString()}));
    EXPECT_EQ(form.findChildren<QGroupBox*>().size(), 2);
}

TEST(RowLists, ABoldRowStandsApart)
{
    RowList list("lvwList", {}, true);
    list.setRows({{{"a"}}, {{"b"}, true, true}});
    EXPECT_FALSE(list.model()->index(0, 0).data(Qt::FontRole).isValid());
    EXPECT_TRUE(list.model()->index(1, 0).data(Qt::FontRole).value<QFont>().bold());
}

TEST_F(FormOf, AProfileKeyIsChosenAmongTheHubsOwnProfiles)
{
    const auto profile = setting::profileKey("iProfile", "cboComboBox", "Profile");
    auto& form = formOf({profile}, "\tiProfile = 1,\r\n");
    auto& combo = find<QComboBox>(form, "cboComboBox");
    EXPECT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.itemText(0), "Master");
    EXPECT_EQ(combo.currentText(), "Operator");
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(saved(form), "tSample = {\r\n\tiProfile = 2,\r\n}\r\n");
}

TEST_F(FormOf, OfTwoProfilesOfOneNameTheFirstOnesKeyIsSaved)
{
    hub.profiles = {};
    for (const char* name : {"Reg", "Operator", "Reg"})
        hub.profiles.add(name);
    auto& form = formOf({setting::profileKey("iProfile", "cboComboBox", "Profile")}, "\tiProfile = 1,\r\n");
    find<QComboBox>(form, "cboComboBox").setCurrentIndex(2);
    EXPECT_EQ(saved(form), "tSample = {\r\n\tiProfile = 0,\r\n}\r\n");
}

TEST_F(FormOf, AProfileKeyOfNoProfileIsKeptAndNoKeyIsTheFirst)
{
    const auto profile = setting::profileKey("iProfile", "cboComboBox", "Profile");
    auto& form = formOf({profile}, "\tiProfile = 9,\r\n");
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "");
    EXPECT_EQ(saved(form), "tSample = {\r\n\tiProfile = 9,\r\n}\r\n");
    form.parentWidget()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto& other = formOf({profile}, "");
    EXPECT_EQ(find<QComboBox>(other, "cboComboBox").currentText(), "Master");
    EXPECT_EQ(saved(other), "tSample = {\r\n\tiProfile = 0,\r\n}\r\n");
}

TEST_F(FormOf, ANewRowStartsWithTheDeclaredValues)
{
    RowListDeclaration list;
    list.list = "lvwRows";
    list.toolbar = "tlbRows";
    list.columns = {"Word", "Choice"};
    list.dialog.form = EditForm::TextCombo;
    list.dialog.addTitle = "Add";
    list.dialog.labels = {"Word", "Choice"};
    list.dialog.entries = {{"One", "Two"}};
    list.dialog.addValues = {"", "Two"};
    list.load = [](const SettingsFiles&, const HubProfiles&) { return std::vector<CellRow>(); };
    RowListPart part(list, {hub.files, hub.profiles});
    const std::unique_ptr<QWidget> widget(part.widget());
    part.load();
    widget->show();
    const auto seen = test::entering({{{"a"}}}, [&widget] { find<QAction>(*widget, "NEW").trigger(); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen[0].values, (QStringList{"", "Two"}));
    EXPECT_EQ(shown(find<RowList>(*widget, "lvwRows")), QStringList{"a|Two"});
}

} // namespace
} // namespace quillfen
