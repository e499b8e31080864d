#include "shell/kit/listview.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolButton>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::sameBytes;

class KickSettingsForm : public test::FormTest
{
protected:
    std::string& file = hub.file("Security/Kick/KickSettings.tbl");
};

TEST_F(KickSettingsForm, ShowsItsControlsWithLabelsAndRanges)
{
    auto& form = open("Security~Kicks~Settings");
    EXPECT_EQ(form.objectName(), "frmSecurityKickSettings");
    EXPECT_EQ(form.windowTitle(), "Security ~ Kicks ~ Settings");
    const QStringList boxes = {"Announce Kicked Return", "Enable Kick Log Cleaner", "Enable Ascii Kick"};
    for (int at = 0; at < boxes.size(); ++at)
        EXPECT_EQ(find<QCheckBox>(form, QString("chkCheckBox(%1)").arg(at)).text(), boxes[at]);
    struct Number
    {
        const char* label;
        const char* value;
        const char* lowest;
        const char* highest;
    };
    const QList<Number> numbers = {
        {"Warns Make Kick", "5", "1", "50"},    {"Kicks Make Ban", "5", "1", "50"},
        {"TempBans Make Ban", "5", "1", "50"},  {"Kick Ban Time", "10", "1", "500"},
        {"Clean Older Than", "30", "1", "180"}, {"Cleaner Time", "2355", "5", "2359"},
        {"Top Kickers", "10", "1", "100"}};
    for (int at = 0; at < numbers.size(); ++at) {
        auto& box = find<QLineEdit>(form, QString("txtUpDown(%1)").arg(at));
        auto& arrows = find<QAbstractSpinBox>(form, QString("updUpDown(%1)").arg(at));
        EXPECT_EQ(find<QLabel>(form, QString("lblLabel(%1)").arg(at)).text(), numbers[at].label);
        EXPECT_EQ(box.text(), numbers[at].value);
        arrows.stepBy(9999);
        EXPECT_EQ(box.text(), numbers[at].highest);
        arrows.stepBy(-9999);
        EXPECT_EQ(box.text(), numbers[at].lowest);
    }
    find<QLineEdit>(form, "txtUpDown(5)").setText("1259");
    QTest::keyClick(&find<QAbstractSpinBox>(form, "updUpDown(5)"), Qt::Key_Up);
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown(5)").text(), "1260") << "a plain number and no time";
    EXPECT_EQ(find<QToolBar>(form, "tlbCheckBox").actions().size(), 1);
}

TEST_F(KickSettingsForm, SavesEditsInItsOwnOrderAndClampsNothing)
{
    auto& form = open("Security~Kicks~Settings");
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    find<QCheckBox>(form, "chkCheckBox(2)").click();
    QTest::keyClick(&find<QAbstractSpinBox>(form, "updUpDown(0)"), Qt::Key_Up);
    const auto type = [&form](const char* name, const char* text) {
        find<QLineEdit>(form, name).selectAll();
        QTest::keyClicks(&find<QLineEdit>(form, name), text);
    };
    type("txtUpDown(5)", "1299");
    type("txtUpDown(6)", "9999");
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(file, golden("security/KickSettings.save.tbl")));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(KickSettingsForm, AnEmptiedNumberIsSavedAsItStands)
{
    auto& form = open("Security~Kicks~Settings");
    find<QLineEdit>(form, "txtUpDown(5)").clear();
    button(form, "SAVE").trigger();
    EXPECT_NE(file.find("\tiCleanerTime = ,\r\n"), std::string::npos);
}

TEST_F(KickSettingsForm, ARestoreShowsTheDefaultsAndWritesNothing)
{
    file = golden("security/KickSettings.save.tbl");
    auto& form = open("Security~Kicks~Settings");
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown(5)").text(), "1299");
    find<QCheckBox>(form, "chkCheckBox(1)").click();
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Restore defaults?");
    EXPECT_EQ(boxes[0].text, "Restore to defaults?");
    QStringList numbers;
    for (int at = 0; at < 7; ++at)
        numbers.append(find<QLineEdit>(form, QString("txtUpDown(%1)").arg(at)).text());
    EXPECT_EQ(numbers, (QStringList{"5", "5", "5", "10", "30", "2355", "10"}));
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(1)").isChecked());
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(2)").isChecked());
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(file, golden("security/KickSettings.save.tbl"));
}

TEST_F(KickSettingsForm, TheAsciiKickIsSavedByItsEditorAndLeavesTheFormClean)
{
    auto& form = open("Security~Kicks~Settings");
    test::withModal([&form] { button(form, "EDIT", "tlbCheckBox").trigger(); },
                    [](QWidget& dialog) {
                        EXPECT_EQ(dialog.objectName(), "frmGlobalTextEdit");
                        auto& text = find<QPlainTextEdit>(dialog, "txtTextBox");
                        EXPECT_EQ(text.toPlainText(), "!victim!: !reason!");
                        text.setPlainText("Out!");
                        find<QAction>(dialog, "SAVE").trigger();
                        dialog.close();
                    });
    EXPECT_EQ(hub.file("Security/Kick/KickAscii.asc"), "Out!\r\n");
    EXPECT_FALSE(isDirty(form));
}

/// A hub of two profiles beside "Unregistered": nine cells a command.
class KickPermissionsForm : public test::FormTest
{
protected:
    KickPermissionsForm()
    {
        hub.profiles = {};
        hub.profiles.add("Master");
        hub.profiles.add("Reg");
        for (const char* word : {"Drop", "Warn", "Kick", "Ban", "Unban"})
            hub.file(std::string("Security/Kick/KickCan") + word + ".tbl").clear();
    }

    EditorForm& openForm() { return open("Security~Kicks~Permissions"); }
    static ListView& list(EditorForm& form) { return find<ListView>(form, "lvwPermissions"); }

    /// A choice from a filter button's drop-down.
    static void choose(EditorForm& form, const char* filter, const char* entry)
    {
        find<QAction>(*button(form, filter, "tlbListview").menu(), entry).trigger();
    }

    static QString square(const QString& table, const QString& digits)
    {
        QString text = table + " = {\r\n";
        for (int by = 0; by < 3; ++by) {
            text += QString("\t[%1] = {\r\n").arg(by - 1);
            for (int on = 0; on < 3; ++on)
                text += QString("\t\t[%1] = %2,\r\n").arg(on - 1).arg(digits[by * 3 + on]);
            text += "\t},\r\n";
        }
        return text + "}\r\n";
    }
};

TEST_F(KickPermissionsForm, HasNineCellsACommandAnd54RowsGroupedForReading)
{
    hub.file("Security/Kick/KickCanDrop.tbl") = square("tKickCanDrop", "010000001").toStdString();
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmSecurityKickPermissions");
    EXPECT_EQ(form.windowTitle(), "Security ~ Kicks ~ Permissions");
    const auto rows = shown(list(form));
    ASSERT_EQ(rows.size(), 54);
    EXPECT_EQ(rows.mid(0, 10),
              (QStringList{"Drop|Unregistered|Unregistered|No", "||Master|Yes", "||Reg|No",
                           "|Master|Unregistered|No", "||Master|No", "||Reg|No", "|Reg|Unregistered|No",
                           "||Master|No", "||Reg|Yes", "Warn|Unregistered|Unregistered|No"}));
    QStringList commands;
    for (const QString& row : rows) {
        if (!row.startsWith('|'))
            commands.append(row.section('|', 0, 0));
    }
    EXPECT_EQ(commands, (QStringList{"Drop", "Warn", "Kick", "TimeBan", "Ban", "Unban"}));
    QStringList columns;
    for (int column = 0; column < 4; ++column)
        columns.append(list(form).model()->headerData(column, Qt::Horizontal).toString());
    EXPECT_EQ(columns, (QStringList{"Command", "By Profile", "On Profile", "Allow To"}));
}

TEST_F(KickPermissionsForm, TimeBansAreAllNoOnATreeThatOnlyTheBuildWrote)
{
    hub.file("Security/Kick/KickCanTempBan.tbl") = square("tKickCanTempBan", "111111111").toStdString();
    auto& form = openForm();
    choose(form, "COMMAND", "C*TimeBan");
    for (const QString& row : shown(list(form)))
        EXPECT_TRUE(row.endsWith("|No")) << row.toStdString();
}

TEST_F(KickPermissionsForm, ItsToolbarsHaveTheirButtons)
{
    auto& form = openForm();
    QStringList keys;
    for (auto* action : find<QToolBar>(form, "tlbFormToolbar").actions())
        keys.append(action->objectName());
    EXPECT_FALSE(keys.contains("RESTORE"));
    EXPECT_TRUE(keys.contains("SAVE") && keys.contains("DISCARD"));
    EXPECT_EQ(button(form, "COMMAND", "tlbListview").toolTip(), "View By Command");
    EXPECT_EQ(button(form, "PROFILE", "tlbListview").toolTip(), "View By Profile");
    const auto entries = [&form](const char* filter) {
        QStringList names;
        for (auto* entry : button(form, filter, "tlbListview").menu()->actions())
            names.append(entry->objectName() + '=' + entry->text());
        return names;
    };
    EXPECT_EQ(entries("COMMAND"), (QStringList{"C*Drop=Drop", "C*Warn=Warn", "C*Kick=Kick",
                                               "C*TimeBan=TimeBan", "C*Ban=Ban", "C*Unban=Unban"}));
    EXPECT_EQ(entries("PROFILE"), (QStringList{"Unregistered=Unregistered", "Master=Master", "Reg=Reg"}));
}

TEST_F(KickPermissionsForm, WhereTheTargetIsThatOfTheRowAboveARowDoesNotNameIt)
{
    hub.profiles = {};
    auto& form = openForm();
    EXPECT_EQ(shown(list(form)), (QStringList{"Drop|Unregistered|Unregistered|No", "Warn|Unregistered||No",
                                              "Kick|Unregistered||No", "TimeBan|Unregistered||No",
                                              "Ban|Unregistered||No", "Unban|Unregistered||No"}));
    doubleClickRow(list(form), 1);
    EXPECT_EQ(shown(list(form))[1], "Warn|Unregistered||Yes");
    button(form, "SAVE").trigger();
    for (const std::string word : {"Drop", "Warn", "Kick", "TimeBan", "Ban", "Unban"})
        EXPECT_EQ(hub.file("Security/Kick/KickCan" + word + ".tbl"),
                  "tKickCan" + word + " = {\r\n\t[-1] = {\r\n\t\t[-1] = " + (word == "Warn" ? "1" : "0") +
                      ",\r\n\t},\r\n}\r\n");
}

TEST_F(KickPermissionsForm, AFilterPressedWithoutAChoiceStaysReleased)
{
    auto& form = openForm();
    for (const char* filter : {"COMMAND", "PROFILE"}) {
        button(form, filter, "tlbListview").trigger();
        EXPECT_FALSE(button(form, filter, "tlbListview").isChecked()) << filter;
    }
    EXPECT_EQ(shown(list(form)).size(), 54);
}

TEST_F(KickPermissionsForm, AProfileThatIsNamedLikeACommandsEntryFiltersThatCommand)
{
    hub.profiles.add("C*Kick");
    auto& form = openForm();
    choose(form, "PROFILE", "C*Kick");
    EXPECT_EQ(shown(list(form)).size(), 16);
    EXPECT_EQ(shown(list(form)).first(), "Kick|Unregistered|Unregistered|No");
    EXPECT_TRUE(button(form, "PROFILE", "tlbListview").isChecked());
}

TEST_F(KickPermissionsForm, FiltersCombineAndTheFirstRowShownNamesItsCommand)
{
    auto& form = openForm();
    choose(form, "COMMAND", "C*Kick");
    EXPECT_EQ(shown(list(form)).size(), 9);
    EXPECT_EQ(shown(list(form)).first(), "Kick|Unregistered|Unregistered|No");
    EXPECT_TRUE(button(form, "COMMAND", "tlbListview").isChecked());
    choose(form, "PROFILE", "Reg");
    EXPECT_EQ(shown(list(form)), (QStringList{"Kick|Reg|Unregistered|No", "||Master|No", "||Reg|No"}));
    button(form, "COMMAND", "tlbListview").trigger();
    EXPECT_FALSE(button(form, "COMMAND", "tlbListview").isChecked());
    EXPECT_EQ(shown(list(form)).size(), 18);
    EXPECT_EQ(shown(list(form))[3], "Warn|Reg|Unregistered|No");
    button(form, "PROFILE", "tlbListview").trigger();
    EXPECT_EQ(shown(list(form)).size(), 54);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(KickPermissionsForm, ATogglesOfARowWithBlankColumnsChangesTheRightCellAndKeepsTheRow)
{
    auto& form = openForm();
    doubleClickRow(list(form), 9 + 5); // Warn, by Master, on Reg
    EXPECT_EQ(shown(list(form))[14], "||Reg|Yes");
    EXPECT_EQ(list(form).currentRow(), 14);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(hub.file("Security/Kick/KickCanWarn.tbl"),
                          square("tKickCanWarn", "000001000").toStdString()));
    EXPECT_TRUE(sameBytes(hub.file("Security/Kick/KickCanDrop.tbl"),
                          square("tKickCanDrop", "000000000").toStdString()));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(KickPermissionsForm, TheFirstSaveMakesTheTimeBansFile)
{
    auto& form = openForm();
    choose(form, "COMMAND", "C*TimeBan");
    clickRow(list(form), 4);
    button(form, "EDIT", "tlbListview").trigger();
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(hub.file("Security/Kick/KickCanTimeBan.tbl"),
                          square("tKickCanTimeBan", "000010000").toStdString()));
}

TEST_F(KickPermissionsForm, ASaveWritesTheSixFilesInOrderAndReadsThemAgain)
{
    auto& form = openForm();
    doubleClickRow(list(form), 0);
    hub.store.log.clear();
    hub.store.readings.clear();
    button(form, "SAVE").trigger();
    std::vector<std::string> expected;
    for (const char* word : {"Drop", "Warn", "Kick", "TimeBan", "Ban", "Unban"}) {
        const std::string path = hub.root + "/Security/Kick/KickCan" + word + ".tbl";
        expected.push_back("write " + path);
        EXPECT_EQ(hub.store.readings[path], 1) << word;
    }
    EXPECT_EQ(hub.store.log, expected);
}

TEST_F(KickPermissionsForm, WhatAFilterHidesIsSavedAllTheSame)
{
    hub.file("Security/Kick/KickCanBan.tbl") = square("tKickCanBan", "100010001").toStdString();
    auto& form = openForm();
    choose(form, "PROFILE", "Master");
    doubleClickRow(list(form), 0); // Drop, by Master, on Unregistered
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(hub.file("Security/Kick/KickCanBan.tbl"),
                          square("tKickCanBan", "100010001").toStdString()));
    EXPECT_TRUE(sameBytes(hub.file("Security/Kick/KickCanDrop.tbl"),
                          square("tKickCanDrop", "000100000").toStdString()));
}

TEST_F(KickPermissionsForm, ADiscardReloadsTheGridAndGoesClean)
{
    auto& form = openForm();
    doubleClickRow(list(form), 0);
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(shown(list(form))[0], "Drop|Unregistered|Unregistered|No");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(KickPermissionsForm, TheBorrowedMenuOffersTheOtherStateAndBothItsEntriesToggle)
{
    auto& form = openForm();
    auto* menu = window().popUpMenu("mnuTrueFalse");
    const auto rightClick = [&](int row) {
        clickRow(list(form), row);
        emit list(form).menuAsked({0, 0}, true);
        menu->hide();
    };
    rightClick(1);
    EXPECT_TRUE(find<QAction>(*menu, "mnuTrueFalseTrue").isEnabled());
    EXPECT_FALSE(find<QAction>(*menu, "mnuTrueFalseFalse").isEnabled());
    find<QAction>(*menu, "mnuTrueFalseTrue").trigger();
    EXPECT_EQ(shown(list(form))[1], "||Master|Yes");
    rightClick(1);
    EXPECT_FALSE(find<QAction>(*menu, "mnuTrueFalseTrue").isEnabled());
    EXPECT_TRUE(find<QAction>(*menu, "mnuTrueFalseFalse").isEnabled());
    find<QAction>(*menu, "mnuTrueFalseFalse").trigger();
    EXPECT_EQ(shown(list(form))[1], "||Master|No");
    EXPECT_TRUE(form.routine("gMenuTrueFalseTrueClick"));
    EXPECT_TRUE(form.routine("gMenuTrueFalseFalseClick"));
}

TEST_F(KickPermissionsForm, AFullHubOf64ProfilesHas24576Rows)
{
    while (hub.profiles.count() < 64)
        hub.profiles.add("P");
    auto& form = openForm();
    EXPECT_EQ(list(form).model()->rowCount(), 24576);
}

} // namespace
} // namespace quillfen
