#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::sameBytes;

class GeneralForms : public test::FormTest
{
protected:
    std::string& settings = hub.file("General/Globals/GeneralSettings.tbl");
    std::string& switches = hub.file("General/Globals/Switches.tbl");

    static QLineEdit& box(EditorForm& form, const char* name) { return find<QLineEdit>(form, name); }
    static RowList& list(EditorForm& form) { return find<RowList>(form, "lvwSwitches"); }
    static void tick(EditorForm& form, const char* text) { clickTick(list(form), rowOf(list(form), text)); }

    static bool isTicked(EditorForm& form, const char* text)
    {
        return list(form).rows()[static_cast<std::size_t>(rowOf(list(form), text))].checked;
    }
};

TEST_F(GeneralForms, SettingsShowTheFilesValues)
{
    settings =
        "tGeneralSettings = {\r\n\tbAllowAllPrefixes = 0,\r\n\tbFlatRC = 1,\r\n\tbUnregRCEnable = 0,\r\n"
        "\tsBorder = \"<>\",\r\n\tsRightClickName = \"Quill\",\r\n\tsPrefix = \"!\",\r\n}\r\n";
    auto& form = open("General~Settings");
    EXPECT_EQ(form.objectName(), "frmGeneralGeneral");
    EXPECT_EQ(form.windowTitle(), "General ~ Settings");
    EXPECT_EQ(form.minimumSize(), QSize(3165 / 15, 3450 / 15));
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(1)").isChecked());
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(2)").isChecked());
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(0)").text(), "Allow All Prefixes");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(1)").text(), "Flattened RC");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(2)").text(), "Enable RC for Unreg");
    EXPECT_EQ(box(form, "txtTextBox(0)").text(), "<>");
    EXPECT_EQ(box(form, "txtTextBox(1)").text(), "Quill");
    EXPECT_EQ(find<QComboBox>(form, "cboPrefixes").currentText(), "!");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Border");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(1)").text(), "Right Click Name");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(2)").text(), "Prefixes");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(GeneralForms, PrefixesAreNineInOrderAtEachLoad)
{
    auto& form = open("General~Settings");
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    QStringList entries;
    auto& combo = find<QComboBox>(form, "cboPrefixes");
    for (int at = 0; at < combo.count(); ++at)
        entries.append(combo.itemText(at));
    EXPECT_EQ(entries, (QStringList{"+", "-", "!", "#", "$", QStringLiteral(u"\u00A3"), "?", "~", "="}));
}

TEST_F(GeneralForms, SettingsEditedThroughTheirWidgetsAreSavedInTheFormsOrder)
{
    auto& form = open("General~Settings");
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    find<QCheckBox>(form, "chkCheckBox(1)").click();
    box(form, "txtTextBox(0)").selectAll();
    QTest::keyClicks(&box(form, "txtTextBox(0)"), "<<>>"); // any number of border characters
    QTest::keyClicks(&box(form, "txtTextBox(1)"), "Quill");
    find<QComboBox>(form, "cboPrefixes").setCurrentIndex(5);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("general/GeneralSettings.save.tbl")));
}

TEST_F(GeneralForms, APrefixOfNoEntryStaysAndIsSavedAsItIs)
{
    settings = "tGeneralSettings = {\r\n\tsPrefix = \"%%\",\r\n}\r\n";
    auto& form = open("General~Settings");
    EXPECT_EQ(find<QComboBox>(form, "cboPrefixes").currentText(), "%%");
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    button(form, "SAVE").trigger();
    EXPECT_NE(settings.find("\tsPrefix = \"%%\",\r\n"), std::string::npos);
}

TEST_F(GeneralForms, TheSaveShortcutSaves)
{
    auto& form = open("General~Settings");
    find<QCheckBox>(form, "chkCheckBox(1)").click();
    find<QCheckBox>(form, "chkCheckBox(1)").setFocus();
    QTest::keyClick(&find<QCheckBox>(form, "chkCheckBox(1)"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(isDirty(form));
    EXPECT_NE(settings.find("\tbFlatRC = 1,"), std::string::npos);
}

TEST_F(GeneralForms, ADiscardAsksAndReloads)
{
    auto& form = open("General~Settings");
    QTest::keyClicks(&box(form, "txtTextBox(1)"), "Quill");
    auto boxes = answering(QMessageBox::Cancel, [&form] { button(form, "DISCARD").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Discard all unsaved changes?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(boxes[0].format, Qt::PlainText);
    EXPECT_EQ(box(form, "txtTextBox(1)").text(), "Quill");
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(box(form, "txtTextBox(1)").text(), "");
}

TEST_F(GeneralForms, AfterADiscardTheSettingsFormStaysDirtyUntilTheNextSave)
{
    auto& form = open("General~Settings");
    QTest::keyClicks(&box(form, "txtTextBox(1)"), "Quill");
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
}

TEST_F(GeneralForms, ADiscardOfACleanSettingsFormLeavesItClean)
{
    auto& form = open("General~Settings");
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_FALSE(isDirty(form));
}

TEST_F(GeneralForms, ARestoreShowsTheDefaultsAndWritesNothing)
{
    settings = "tGeneralSettings = {\r\n\tbFlatRC = 1,\r\n\tsRightClickName = \"Quill\",\r\n}\r\n";
    const std::string before = settings;
    auto& form = open("General~Settings");
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Restore defaults?");
    EXPECT_EQ(boxes[0].text, "Restore to defaults?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(1)").isChecked());
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(2)").isChecked());
    EXPECT_EQ(box(form, "txtTextBox(0)").text(), QStringLiteral(u"\u00BB\u00AB"));
    EXPECT_EQ(box(form, "txtTextBox(1)").text(), "");
    EXPECT_EQ(find<QComboBox>(form, "cboPrefixes").currentText(), "+");
    EXPECT_TRUE(isDirty(form));
    const auto closing = answering(QMessageBox::Ok, [&form] { form.parentWidget()->close(); });
    ASSERT_EQ(closing.size(), 1);
    EXPECT_EQ(closing[0].title, "Discard changes?");
    EXPECT_EQ(settings, before);
}

TEST_F(GeneralForms, ACancelledRestoreChangesNothing)
{
    auto& form = open("General~Settings");
    find<QComboBox>(form, "cboPrefixes").setEditText("?");
    button(form, "SAVE").trigger();
    answering(QMessageBox::Cancel, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(find<QComboBox>(form, "cboPrefixes").currentText(), "?");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(GeneralForms, ChangingNothingAndClosingShowsNoBox)
{
    auto& form = open("General~Settings");
    EXPECT_TRUE(answering(QMessageBox::Ok, [&form] { form.parentWidget()->close(); }).isEmpty());
}

TEST_F(GeneralForms, ACancelKeepsADirtyFormOpen)
{
    auto& form = open("General~Settings");
    find<QCheckBox>(form, "chkCheckBox(1)").click();
    answering(QMessageBox::Cancel, [&form] { form.parentWidget()->close(); });
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(window().openWindows().Count(), 1);
}

TEST_F(GeneralForms, AFailedSaveTellsTheFileAndKeepsTheFormDirtyAndComplete)
{
    auto& form = open("General~Settings");
    QTest::keyClicks(&box(form, "txtTextBox(1)"), "Quill");
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const std::string before = settings;
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(boxes[0].text.toStdString(),
              test::native("General ~ Settings couldn't be saved. /hub/scripts/Morvaleth's "
                           "Quillfen/Settings/General/Globals/GeneralSettings.tbl: No space left on "
                           "device. Nothing that you typed is lost: mend it and save again."));
    EXPECT_EQ(boxes[0].format, Qt::PlainText);
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(box(form, "txtTextBox(1)").text(), "Quill");
    EXPECT_EQ(settings, before);
    hub.store.failingCall = -1;
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
}

TEST_F(GeneralForms, OfTwoEditorsOfOneFileTheLastSaveWins)
{
    auto& form = open("General~Settings");
    QTest::keyClicks(&box(form, "txtTextBox(1)"), "mine");
    settings = "another editor's text";
    EXPECT_EQ(box(form, "txtTextBox(1)").text(), "mine"); // no form reloads by itself
    button(form, "SAVE").trigger();
    EXPECT_NE(settings.find("\tsRightClickName = \"mine\","), std::string::npos);
}

TEST_F(GeneralForms, APortalSwitchPutInByHandShowsAndIsSavedLikeAnyOther)
{
    switches = "tSwitches = {\r\n\tbMute = 1,\r\n\tbPortal = 1,\r\n}\r\n";
    auto& form = open("General~Switches");
    EXPECT_TRUE(isTicked(form, "Portal"));
    tick(form, "Mute");
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(switches, "tSwitches = {\r\n\tbMute = 0,\r\n\tbPortal = 1,\r\n}\r\n"));
}

/// The functions with a tick each, in a file of their own.
struct TickedFunctions
{
    const char* key;
    const char* form;
    const char* caption;
    const char* file; ///< and its golden files
    const char* other;
};

class SwitchForms : public GeneralForms, public testing::WithParamInterface<TickedFunctions>
{
protected:
    static std::string path(const char* file) { return std::string("General/Globals/") + file + ".tbl"; }
    std::string goldenOf(const char* state) const
    {
        return golden(std::string("general/") + words.file + '.' + state + ".tbl");
    }

    const TickedFunctions& words = GetParam();
    std::string& file = hub.file(path(words.file));
};

INSTANTIATE_TEST_SUITE_P(
    Both, SwitchForms,
    testing::Values(TickedFunctions{"General~Switches", "frmGeneralSwitches", "General ~ Switches",
                                    "Switches", "EnabledRightClicks"},
                    TickedFunctions{"General~EnabledRightClicks", "frmGeneralRightClicks",
                                    "General ~ Right Clicks", "EnabledRightClicks", "Switches"}),
    [](const auto& each) { return std::string(each.param.form); });

TEST_P(SwitchForms, ShowEveryFunctionWithoutItsLetter)
{
    auto& form = open(words.key);
    EXPECT_EQ(form.objectName(), words.form);
    EXPECT_EQ(form.windowTitle(), words.caption);
    EXPECT_EQ(list(form).rows().size(), 56U);
    EXPECT_EQ(list(form).rows().front().cells[0], "Anagrams");
    EXPECT_EQ(list(form).rows().back().cells[0], "Whisper");
    EXPECT_TRUE(isTicked(form, "Anagrams"));
    EXPECT_FALSE(isTicked(form, "TopicChanger"));
    EXPECT_FALSE(isDirty(form));
}

TEST_P(SwitchForms, ATickMakesThemDirtyAndIsSavedInTheirOwnFile)
{
    const std::string other = hub.file(path(words.other));
    auto& form = open(words.key);
    for (const char* name : {"RotatingPrivateMessage", "TopicChanger", "Mute"})
        tick(form, name);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(file, goldenOf("save")));
    EXPECT_TRUE(sameBytes(hub.file(path(words.other)), other));
}

TEST_P(SwitchForms, ARestoreTicksEveryRowAlsoTheTwoThatABuildLeavesOff)
{
    auto& form = open(words.key);
    tick(form, "Mute");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(isTicked(form, "RotatingPrivateMessage"));
    EXPECT_TRUE(isTicked(form, "TopicChanger"));
    EXPECT_TRUE(isTicked(form, "Mute"));
    EXPECT_TRUE(isDirty(form));
    EXPECT_TRUE(sameBytes(file, goldenOf("build")));
}

TEST_P(SwitchForms, ADiscardLeavesThemClean)
{
    auto& form = open(words.key);
    tick(form, "Mute");
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_TRUE(isTicked(form, "Mute"));
    EXPECT_EQ(list(form).rows().size(), 56U);
    EXPECT_FALSE(isDirty(form));
}

TEST_P(SwitchForms, AClickOnARowShowsItsHelpInABalloon)
{
    auto& form = open(words.key);
    const auto click = [&form](const char* text) { clickRow(list(form), rowOf(list(form), text)); };
    click("Mute");
    const auto balloons = [&form] { return form.findChildren<QWidget*>("CTooltip"); };
    ASSERT_EQ(balloons().size(), 1);
    EXPECT_EQ(find<QLabel>(*balloons()[0], "lblTitle").text(), "Mute");
    EXPECT_EQ(find<QLabel>(*balloons()[0], "lblText").text(), "Allows users to be muted");
    click("TopicChanger");
    ASSERT_EQ(balloons().size(), 1);
    EXPECT_EQ(find<QLabel>(*balloons()[0], "lblText").text(), "Changes hub topic on a timer");
    EXPECT_FALSE(isDirty(form));
}

} // namespace
} // namespace quillfen
