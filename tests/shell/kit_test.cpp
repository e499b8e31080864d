#include "settings/declaration.h"
#include "shell/icons/icons.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/permissiongridpart.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/ticklistpart.h"
#include "shell/kit/toolbars.h"
#include "shell/kit/tooltip.h"
#include "support/dialogs.h"
#include "support/formtest.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QTreeWidget>

namespace quillfen {
namespace {

TEST(CodePageText, All256BytesComeBack)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const QString text = fromBytes(bytes);
    EXPECT_EQ(text.size(), 256);
    EXPECT_EQ(toBytes(text), bytes);
    EXPECT_EQ(fromBytes("\x95\xBB\x80"), QStringLiteral(u"\u2022\u00BB\u20AC"));
}

TEST(CodePageText, WhatTheCodePageLacksCannotBeTypedOrPasted)
{
    QLineEdit edit;
    edit.setValidator(new CodePageValidator(&edit));
    edit.setText("ab");
    edit.setCursorPosition(1);
    edit.insert(QStringLiteral(u"\u20AC"));
    edit.insert(QStringLiteral(u"1\u04162\U0001F6003"));
    EXPECT_EQ(edit.text(), QStringLiteral(u"a\u20AC123b"));
    EXPECT_EQ(edit.cursorPosition(), 5);
}

QStringList keysAndTips(const QToolBar& toolbar)
{
    QStringList seen;
    for (auto* action : toolbar.actions())
        seen.append(action->isSeparator() ? QStringLiteral("|")
                                          : action->objectName() + '=' + action->toolTip());
    return seen;
}

TEST(Icons, AreLoadedOnceForAllForms)
{
    EXPECT_EQ(themedIcon("save").cacheKey(), themedIcon("save").cacheKey());
    EXPECT_NE(themedIcon("save").cacheKey(), themedIcon("edit").cacheKey());
    EXPECT_FALSE(themedIcon("save").pixmap(16, 16).isNull());
}

TEST(Toolbars, EachBuilderAddsItsButtons)
{
    using Builder = void (*)(QToolBar&, int&);
    const QList<QPair<Builder, QStringList>> builders = {
        {BuildFormToolbar,
         {"|", "SAVE=Save changes", "|", "DISCARD=Discard changes", "RESTORE=Restore defaults", "|"}},
        {AddDeleteButton, {"DELETE=Delete"}},
        {AddEditButton, {"EDIT=Edit"}},
        {AddEditAllButton, {"EDITALL=Edit All"}},
        {AddAmendButton, {"AMEND=Amend"}},
        {BuildListToolbar, {"NEW=Add", "DELETE=Delete", "EDIT=Edit"}},
        {BuildFileListToolbar,
         {"NEW=Create new file", "OPEN=Add existing file", "DELETE=Delete question file",
          "EDIT=Edit question file"}},
        {BuildFileEditToolbar,
         {"SAVE=Save changes", "CLOSE=Discard changes", "NEW=Add new question", "EDIT=Edit question",
          "DELETE=Delete question"}},
    };
    for (const auto& [build, expected] : builders) {
        QToolBar toolbar;
        int index = 0;
        build(toolbar, index);
        EXPECT_EQ(keysAndTips(toolbar), expected);
        EXPECT_EQ(index, expected.size());
        for (auto* action : toolbar.actions()) {
            EXPECT_TRUE(action->isSeparator() || !action->icon().pixmap(16).isNull())
                << action->objectName().toStdString();
        }
    }
}

TEST(Toolbars, ABuilderPutsItsButtonsInAtTheRunningIndex)
{
    QToolBar toolbar;
    int index = 0;
    BuildListToolbar(toolbar, index);
    index = 1;
    AddAmendButton(toolbar, index);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(keysAndTips(toolbar), (QStringList{"NEW=Add", "AMEND=Amend", "DELETE=Delete", "EDIT=Edit"}));
}

TEST(Toolbars, OnlySaveAndTheFileButtonsStartDisabled)
{
    QToolBar form;
    int index = 0;
    BuildFormToolbar(form, index);
    EXPECT_FALSE(button(form, "SAVE")->isEnabled());
    EXPECT_TRUE(button(form, "DISCARD")->isEnabled());
    EXPECT_TRUE(button(form, "RESTORE")->isEnabled());
    EXPECT_FALSE(form.isMovable());
    QToolBar file;
    index = 0;
    BuildFileEditToolbar(file, index);
    for (auto* action : file.actions())
        EXPECT_FALSE(action->isEnabled());
}

TEST(Toolbars, TheStatusBarHasTwoPanels)
{
    QStatusBar bar;
    PlaceChildForm(bar);
    const auto panels = bar.findChildren<QLabel*>();
    ASSERT_EQ(panels.size(), 2);
    EXPECT_EQ(panels[0]->text(), "Controls = Clean");
    EXPECT_EQ(panels[0]->minimumWidth(), 1500 / 15);
    EXPECT_EQ(panels[1]->text(), "");
}

TEST(Toolbars, DirtyAndCleanFollowButtonTwoAndTakeButtonThreeOut)
{
    QToolBar toolbar;
    QStatusBar bar;
    int index = 0;
    BuildFileListToolbar(toolbar, index); // here button 3 is no separator
    PlaceChildForm(bar);
    auto* panel = bar.findChildren<QLabel*>().constFirst();
    EXPECT_TRUE(SetControlsDirty(toolbar, bar));
    EXPECT_TRUE(toolbar.actions()[1]->isEnabled());
    EXPECT_FALSE(toolbar.actions()[2]->isEnabled());
    EXPECT_EQ(panel->text(), "Controls = Dirty");
    EXPECT_FALSE(SetControlsClean(toolbar, bar));
    EXPECT_FALSE(toolbar.actions()[1]->isEnabled());
    EXPECT_FALSE(toolbar.actions()[2]->isEnabled());
    EXPECT_EQ(panel->text(), "Controls = Clean");
}

class OpenFile : public testing::Test
{
protected:
    OpenFile()
    {
        int index = 0;
        BuildFileEditToolbar(toolbar, index);
        for (auto* action : toolbar.actions())
            action->setEnabled(true);
        toolbar.actions().constFirst()->setEnabled(false);
        new QTreeWidgetItem(&list, {"a"});
        new QTreeWidgetItem(&list, {"b"});
        list.setProperty("tag", "words");
    }

    bool isLeft() const
    {
        for (int at = 0; at < 5; ++at) {
            if (toolbar.actions()[at]->isEnabled() != (at == 0))
                return false;
        }
        return list.topLevelItemCount() == 0 && list.property("tag").toString().isEmpty();
    }

    QTreeWidget list;
    QToolBar toolbar;
};

TEST_F(OpenFile, IsLeftAfterAnOk)
{
    bool bDiscardNow = false;
    const auto boxes = test::answering(QMessageBox::Ok, [&] { ConfirmDiscard(list, toolbar, bDiscardNow); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Are you sure you want to discard unsaved changes?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::NoIcon);
    EXPECT_TRUE(bDiscardNow);
    EXPECT_TRUE(isLeft());
}

TEST_F(OpenFile, StaysAfterACancel)
{
    bool bDiscardNow = false;
    test::answering(QMessageBox::Cancel, [&] { ConfirmDiscard(list, toolbar, bDiscardNow); });
    EXPECT_FALSE(bDiscardNow);
    EXPECT_EQ(list.topLevelItemCount(), 2);
    EXPECT_EQ(list.property("tag"), "words");
    EXPECT_FALSE(toolbar.actions()[0]->isEnabled());
}

TEST_F(OpenFile, IsLeftWithoutAQuestionWhenNothingIsDirty)
{
    bool bDiscardNow = true;
    EXPECT_TRUE(
        test::answering(QMessageBox::Cancel, [&] { ConfirmDiscard(list, toolbar, bDiscardNow); }).isEmpty());
    EXPECT_TRUE(isLeft());
}

TEST(NumberBoxTest, BearsBothNames)
{
    NumberBox box("txtUpDown(3)", 1, 50);
    EXPECT_EQ(box.objectName(), "updUpDown(3)");
    EXPECT_TRUE(box.findChild<QLineEdit*>("txtUpDown(3)"));
}

TEST(NumberBoxTest, KeepsWhatIsLoadedOrTypedOutsideItsRange)
{
    NumberBox box("txtUpDown", 1, 720);
    for (const char* text : {"9999", "-5", "abc", "", "007", " 5"}) {
        box.setText(text);
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(box.text(), text);
    }
    box.setText("");
    QTest::keyClicks(&box, "721");
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_EQ(box.text(), "721");
}

TEST(NumberBoxTest, ItsArrowsKeepTheRange)
{
    NumberBox box("txtUpDown", 1, 720);
    const auto stepped = [&box](const char* from, Qt::Key key) {
        box.setText(from);
        QTest::keyClick(&box, key);
        return box.text();
    };
    EXPECT_EQ(stepped("5", Qt::Key_Up), "6");
    EXPECT_EQ(stepped("5", Qt::Key_Down), "4");
    EXPECT_EQ(stepped("720", Qt::Key_Up), "720");
    EXPECT_EQ(stepped("1", Qt::Key_Down), "1");
    EXPECT_EQ(stepped("9999", Qt::Key_Down), "720");
    EXPECT_EQ(stepped("-9", Qt::Key_Up), "1");
    EXPECT_EQ(stepped("abc", Qt::Key_Up), "1");
}

TEST(NumberBoxTest, EitherArrowBringsANumberBackIntoItsRange)
{
    NumberBox box("txtUpDown", 1, 10);
    for (const auto& [key, from] : {std::pair(Qt::Key_Up, "20"), {Qt::Key_Down, "20"}}) {
        box.setText(from);
        QTest::keyClick(&box, key);
        EXPECT_EQ(box.text(), "10");
    }
    box.setText("-5");
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.text(), "1");
}

TEST(NumberBoxTest, ItsStepMayBeMoreThanOne)
{
    NumberBox box("txtUpDown", 50, 5000);
    box.setStep(5);
    box.setText("50");
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.text(), "55");
    box.setText("4998");
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.text(), "5000");
}

TEST(NumberBoxTest, TheWheelDoesNothingWithoutFocus)
{
    NumberBox box("txtUpDown", 1, 720);
    box.setText("5");
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.text(), "5");
}

TEST(Tooltip, ShowsTitleAndTextAndReplacesTheOneBefore)
{
    QWidget parent;
    parent.show();
    CTooltip tooltip;
    const auto balloons = [&parent] { return parent.findChildren<QWidget*>("CTooltip"); };
    tooltip.setTitle("Mute");
    tooltip.setText("Allows users to be muted");
    tooltip.Create(&parent, {0, 0});
    ASSERT_EQ(balloons().size(), 1);
    EXPECT_EQ(balloons()[0]->findChild<QLabel*>("lblTitle")->text(), "Mute");
    EXPECT_EQ(balloons()[0]->findChild<QLabel*>("lblText")->text(), "Allows users to be muted");
    EXPECT_EQ(balloons()[0]->findChild<QLabel*>("lblText")->textFormat(), Qt::PlainText);
    EXPECT_TRUE(QTest::qWaitFor([&] { return balloons()[0]->isVisible(); }));

    tooltip.setTitle("Talk"); // sent again at once
    EXPECT_EQ(balloons()[0]->findChild<QLabel*>("lblTitle")->text(), "Talk");
    tooltip.Create(&parent, {0, 0});
    EXPECT_EQ(balloons().size(), 1);
    tooltip.Destroy();
    EXPECT_TRUE(balloons().isEmpty());
}

TEST(Tooltip, HasColoursStyleIconAndTimes)
{
    QWidget parent;
    parent.show();
    CTooltip tooltip;
    tooltip.setForeColor(Qt::red);
    tooltip.setBackColor(Qt::green);
    tooltip.setStyle(CTooltip::Style::Plain);
    tooltip.setIcon(std::nullopt);
    tooltip.setDelayTime(0);
    tooltip.setVisibleTime(20);
    tooltip.Create(&parent, {0, 0});
    auto* window = parent.findChild<QWidget*>("CTooltip");
    ASSERT_TRUE(window);
    EXPECT_EQ(window->palette().color(QPalette::ToolTipText), QColor(Qt::red));
    EXPECT_EQ(window->palette().color(QPalette::ToolTipBase), QColor(Qt::green));
    EXPECT_TRUE(window->findChild<QLabel*>("lblIcon")->pixmap().isNull());
    EXPECT_TRUE(QTest::qWaitFor([&parent] { return parent.findChildren<QWidget*>("CTooltip").isEmpty(); }));
}

/// A form of one declared file with a control of each kind.
class DeclaredForm : public test::FormTest
{
protected:
    DeclaredForm()
    {
        forms.push_back({"frmGamesAnagrams", [this](const FormContext& context) {
                             auto* form = new EditorForm({"frmGamesAnagrams", "Games ~ Anagrams"});
                             form->add(new TableFilePart(file, context));
                             return form;
                         }});
        hub.file("A.tbl") =
            "tSample = {\r\n\tbFlag = 1,\r\n\tiNumber = 77,\r\n\tsText = \"t\x80\",\r\n\tsEntry = \"%\",\r\n"
            "\ttEnabledProfiles = {\r\n\t\t[0] = 1,\r\n\t},\r\n}\r\n";
    }

    const TableFile file = {"A.tbl",
                            "tSample",
                            {flag("bFlag", "chkCheckBox(0)", "Flag", "0"),
                             number("iNumber", "txtUpDown(0)", "Number", "5", 1, 50),
                             text("sText", "txtTextBox(0)", "Text", "x"),
                             entry("sEntry", "cboComboBox", "Entry", "+", {"+", "-"}),
                             profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles")}};
};

TEST_F(DeclaredForm, LoadsEachControlFromOneReadingOfTheFile)
{
    hub.store.readings.clear();
    auto& form = open("Games~Anagrams");
    EXPECT_EQ(hub.store.readings[hub.root + "/A.tbl"], 1);
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown(0)").text(), "77");
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox(0)").text(), QStringLiteral(u"t\u20AC"));
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "%");
    EXPECT_EQ(find<RowList>(form, "lvwEnabledProfiles").rows(),
              (std::vector<CellRow>{{{"Unregistered"}}, {{"Master"}, true}, {{"Operator"}}, {{"VIP"}}}));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(DeclaredForm, EachChangeMakesItDirty)
{
    const auto dirtyAfter = [this](const std::function<void(EditorForm&)>& change) {
        auto& form = open("Games~Anagrams");
        EXPECT_FALSE(isDirty(form));
        change(form);
        const bool dirty = isDirty(form);
        test::answering(QMessageBox::Ok, [&form] { form.parentWidget()->close(); });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return dirty;
    };
    EXPECT_TRUE(dirtyAfter([](EditorForm& form) { find<QCheckBox>(form, "chkCheckBox(0)").click(); }));
    EXPECT_TRUE(
        dirtyAfter([](EditorForm& form) { QTest::keyClicks(&find<QLineEdit>(form, "txtUpDown(0)"), "1"); }));
    EXPECT_TRUE(dirtyAfter(
        [](EditorForm& form) { QTest::keyClick(&find<NumberBox>(form, "updUpDown(0)"), Qt::Key_Down); }));
    EXPECT_TRUE(
        dirtyAfter([](EditorForm& form) { QTest::keyClicks(&find<QLineEdit>(form, "txtTextBox(0)"), "y"); }));
    EXPECT_TRUE(
        dirtyAfter([](EditorForm& form) { find<QComboBox>(form, "cboComboBox").setCurrentIndex(1); }));
    EXPECT_TRUE(
        dirtyAfter([](EditorForm& form) { clickTick(find<RowList>(form, "lvwEnabledProfiles"), 0); }));
}

TEST_F(DeclaredForm, SavesWhatTheControlsHoldOutOfRangeNumbersIncluded)
{
    auto& form = open("Games~Anagrams");
    clickTick(find<RowList>(form, "lvwEnabledProfiles"), 3);
    button(form, "SAVE").trigger();
    EXPECT_EQ(
        hub.file("A.tbl"),
        "tSample = {\r\n\tbFlag = 1,\r\n\tiNumber = 77,\r\n\tsText = \"t\x80\",\r\n\tsEntry = \"%\",\r\n"
        "\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t\t[1] = 0,\r\n\t\t[2] = "
        "1,\r\n\t},\r\n}\r\n");
    EXPECT_FALSE(isDirty(form));
    const std::string once = hub.file("A.tbl");
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    button(form, "SAVE").trigger();
    EXPECT_EQ(hub.file("A.tbl"), once);
}

TEST_F(DeclaredForm, AMissingFileLoadsAsEmptyWithANumberOfZero)
{
    hub.store.files.erase(hub.root + "/A.tbl");
    auto& form = open("Games~Anagrams");
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown(0)").text(), "0");
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox(0)").text(), "");
}

TEST_F(DeclaredForm, EveryControlHasItsLabelAndAccessibleName)
{
    auto& form = open("Games~Anagrams");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(0)").text(), "Flag");
    const QList<QPair<const char*, const char*>> labels = {{"lblLabel(0)", "Number"},
                                                           {"lblLabel(1)", "Text"},
                                                           {"lblLabel(2)", "Entry"},
                                                           {"lblLabel(3)", "Enabled Profiles"}};
    for (const auto& [name, text] : labels) {
        auto& label = find<QLabel>(form, name);
        EXPECT_EQ(label.text(), text);
        ASSERT_TRUE(label.buddy());
        EXPECT_EQ(label.buddy()->accessibleName(), text);
    }
}

TEST_F(DeclaredForm, AnEmptiedNumberStaysEmptyWhenSaved)
{
    auto& form = open("Games~Anagrams");
    find<QLineEdit>(form, "txtUpDown(0)").clear();
    button(form, "SAVE").trigger();
    EXPECT_NE(hub.file("A.tbl").find("\tiNumber = ,\r\n"), std::string::npos);
}

/// A form of one declared file of the settings that a test gives it.
class FormOf : public test::FormTest
{
protected:
    EditorForm& formOf(std::vector<Setting> settings, const std::string& rows)
    {
        file = {"A.tbl", "tSample", std::move(settings)};
        hub.file("A.tbl") = "tSample = {\r\n" + rows + "}\r\n";
        std::erase_if(forms, [](const FormMaker& maker) { return maker.name == "frmGamesAnagrams"; });
        forms.push_back({"frmGamesAnagrams", [this](const FormContext& context) {
                             auto* form = new EditorForm({"frmGamesAnagrams", "Games ~ Anagrams"});
                             form->add(new TableFilePart(file, context));
                             return form;
                         }});
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
    auto& form = formOf({letter("sAction", "cboComboBox", "Action", "T", {"Kick", "TempBan"})},
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
    auto& form = formOf({letter("sAction", "cboComboBox", "Action", "T", {"Kick", "TempBan"})},
                        "\tsAction = \"k\",\r\n");
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "");
    EXPECT_EQ(saved(form), "tSample = {\r\n\tsAction = \"\",\r\n}\r\n");
}

TEST_F(FormOf, ARestoreLeavesAloneWhatIsKept)
{
    Setting kept = text("sText", "txtTextBox", "Text", "x");
    kept.keptByRestore = true;
    auto& form = formOf({kept, number("iNumber", "txtUpDown", "Number", "5", 1, 50)},
                        "\tsText = \"mine\",\r\n\tiNumber = 7,\r\n");
    test::answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox").text(), "mine");
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "5");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(FormOf, NamedFlagsAreACheckListWithoutTheirLetter)
{
    auto& form = formOf({namedFlags("tBlock", "lvwBlocked", "Blocked", {"Active", "Passive"})},
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
    Setting number = quillfen::number("iNumber", "txtUpDown", "Number", "5", 1, 50);
    number.unit = "Days";
    Setting flag = quillfen::flag("bFlag", "chkCheckBox", "Flag", "1");
    flag.toolTip = "a < b";
    Setting list = profileFlags("tMain", "lvwMain", "Main");
    list.column = "Enabled Main";
    auto& form = formOf({number, flag, list}, "");
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
    TickListDescription description{"lvwFilters", "Filters", {"A.tbl", "tA", ListFile::Form::Flags}};
    description.label = "Filtered";
    description.restoreTicks = false;
    TickListPart part(description, {hub.files, hub.profiles});
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
    std::vector<Setting> settings = {
        number("iNumber", "txtUpDown", "Number", "5", 1, 50), flag("bA", "chkCheckBox(0)", "A", "0"),
        flag("bB", "chkCheckBox(1)", "B", "0"), flag("bC", "chkCheckBox(2)", "C", "0"),
        flag("bD", "chkCheckBox(3)", "D", "0")};
    settings[1].frame = settings[2].frame = "Tell";
    settings[3].frame = "Ask";
    auto& form = formOf(settings, "");
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
    const Setting setting = profileKey("iProfile", "cboComboBox", "Profile");
    auto& form = formOf({setting}, "\tiProfile = 1,\r\n");
    auto& combo = find<QComboBox>(form, "cboComboBox");
    EXPECT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.itemText(0), "Master");
    EXPECT_EQ(combo.currentText(), "Operator");
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(saved(form), "tSample = {\r\n\tiProfile = 2,\r\n}\r\n");
}

TEST_F(FormOf, AProfileKeyOfNoProfileIsKeptAndNoKeyIsTheFirst)
{
    const Setting setting = profileKey("iProfile", "cboComboBox", "Profile");
    auto& form = formOf({setting}, "\tiProfile = 9,\r\n");
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "");
    EXPECT_EQ(saved(form), "tSample = {\r\n\tiProfile = 9,\r\n}\r\n");
    form.parentWidget()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto& other = formOf({setting}, "");
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
