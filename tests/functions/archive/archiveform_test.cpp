#include "shell/kit/listview.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QCheckBox>
#include <QMenu>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::golden;
using test::sameBytes;
using test::SeenDialog;

const QStringList members = {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"};

class ArchiveForms : public test::FormTest
{
protected:
    EditorForm& openFor(const QString& member, const char* function)
    {
        return open(qPrintable(member + '~' + function));
    }
    std::string& file(const QString& member, const std::string& name)
    {
        const std::string word = member.toStdString();
        return hub.file("TheArchive/" + word + "/" + word + name + ".tbl");
    }
    bool has(const QString& member, const std::string& name)
    {
        const std::string word = member.toStdString();
        return hub.has("TheArchive/" + word + "/" + word + name + ".tbl");
    }
    static RowList& week(EditorForm& form) { return find<RowList>(form, "lvwWeek"); }
    static ListView& grid(EditorForm& form) { return find<ListView>(form, "lvwPermissions"); }
    static QLineEdit& changeTime(EditorForm& form) { return find<QLineEdit>(form, "txtChangeTime"); }
    static void restore(EditorForm& form)
    {
        answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    }
    static void choose(EditorForm& form, const char* filter, const QString& entry)
    {
        find<QAction>(*button(form, filter, "tlbListview").menu(), entry).trigger();
    }

    /// What a filter offers: each entry's key and caption.
    static QStringList entries(EditorForm& form, const char* filter)
    {
        QStringList all;
        for (const auto* entry : button(form, filter, "tlbListview").menu()->actions())
            all.append(entry->objectName() + '=' + entry->text());
        return all;
    }

    /// The table that a file holds.
    std::string tableIn(const QString& member, const std::string& name)
    {
        return file(member, name).substr(0, file(member, name).find(' '));
    }
};

TEST_F(ArchiveForms, AreCalledByTheirMember)
{
    for (const QString& member : members) {
        const QString items = member == "Hyperlink" ? "Links" : "Items";
        auto& weekForm = openFor(member, "LinkOfTheWeek");
        EXPECT_EQ(weekForm.objectName(), "frm" + member + "Week");
        EXPECT_EQ(weekForm.windowTitle(), member + " ~ Link Of The Week");
        EXPECT_EQ(find<QCheckBox>(weekForm, "chkCheckBox(0)").text(), "Enable Link of Week");
        EXPECT_EQ(find<QLabel>(weekForm, "lblLabel(0)").text(), "Change Time");
        auto& newForm = openFor(member, "NewLinks");
        EXPECT_EQ(newForm.objectName(), "frm" + member + "NewItems");
        EXPECT_EQ(newForm.windowTitle(), member + " ~ New " + items);
        EXPECT_EQ(find<QCheckBox>(newForm, "chkCheckBox(0)").text(), "Enable New " + items);
        EXPECT_EQ(find<QLabel>(newForm, "lblLabel(0)").text(), "Max Number Of New " + items);
        auto& permissions = openFor(member, "Permissions");
        EXPECT_EQ(permissions.objectName(), "frm" + member + "Permissions");
        EXPECT_EQ(permissions.windowTitle(), member + " ~ Permissions");
        for (EditorForm* form : {&weekForm, &newForm, &permissions})
            EXPECT_FALSE(isDirty(*form));
    }
    auto& rightClicks = openFor("Hyperlink", "RightClicks");
    EXPECT_EQ(rightClicks.objectName(), "frmHyperlinkRightClicks");
    EXPECT_EQ(rightClicks.windowTitle(), "Hyperlink ~ Right Clicks");
}

TEST_F(ArchiveForms, AGridHasNothingToRestoreAndBecomesDirtyAllTheSame)
{
    for (auto* form : {&openFor("Arcade", "Permissions"), &openFor("Hyperlink", "RightClicks")}) {
        const auto before = shown(grid(*form));
        restore(*form);
        EXPECT_EQ(shown(grid(*form)), before);
        EXPECT_TRUE(isDirty(*form));
    }
}

TEST_F(ArchiveForms, AMemberWithoutFilesShowsTheEmptyState)
{
    auto& form = openFor("Jukebox", "LinkOfTheWeek");
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_EQ(changeTime(form).text().trimmed(), "");
    EXPECT_TRUE(week(form).isEmpty());
    EXPECT_TRUE(button(form, "NEW", "tlbWeek").isEnabled());
    EXPECT_FALSE(button(form, "DELETE", "tlbWeek").isEnabled());
    EXPECT_FALSE(button(form, "EDIT", "tlbWeek").isEnabled());
    auto& permissions = openFor("Jukebox", "Permissions");
    EXPECT_EQ(shown(grid(permissions)).size(), 20);
    EXPECT_TRUE(shown(grid(permissions)).filter("Yes").isEmpty());
}

TEST_F(ArchiveForms, TheWeekOfAFreshHyperlinkShowsInFull)
{
    auto& form = openFor("Hyperlink", "LinkOfTheWeek");
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_EQ(changeTime(form).text(), "Sunday 17:59");
    EXPECT_EQ(shown(week(form)), QStringList{"Sunday|18:00|PM"});
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(week(form).model()->headerData(column, Qt::Horizontal),
                  (QStringList{"Date", "Time", "Location"})[column]);
}

TEST_F(ArchiveForms, AWeekIsEditedThroughItsDialogsAndSaved)
{
    auto& form = openFor("Arcade", "LinkOfTheWeek");
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    const auto change =
        entering({{{"Monday", "09", "05"}}}, [&] { button(form, "EDIT", "tlbChangeTime").trigger(); });
    ASSERT_EQ(change.size(), 1);
    EXPECT_EQ(change[0].name, "frmGlobalEditThreeCombos");
    EXPECT_EQ(change[0].labels, (QStringList{"Day", "Hour", "Minute"}));
    EXPECT_EQ(changeTime(form).text(), "Monday 09:05");
    const auto added = entering(
        {{{"Friday", "18", "30", "Main Chat"}, "cmdAdd"}, {{"Sunday", "00", "00", "Private Message"}}},
        [&] { button(form, "NEW", "tlbWeek").trigger(); });
    ASSERT_EQ(added.size(), 2);
    EXPECT_EQ(added[0].name, "frmGlobalEditFourCombos");
    EXPECT_EQ(added[0].title, "Add Announcement");
    EXPECT_EQ(added[0].labels, (QStringList{"Day", "Hour", "Minute", "Location"}));
    EXPECT_EQ(shown(week(form)), (QStringList{"Friday|18:30|Main", "Sunday|00:00|PM"}));
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(file("Arcade", "ItemOfTheWeek"), golden("archive/ArcadeItemOfTheWeek.save.tbl")));
}

TEST_F(ArchiveForms, TheDialogsOfferDaysHoursAndMinutes)
{
    auto& form = openFor("Arcade", "LinkOfTheWeek");
    QList<QStringList> items;
    test::withModal([&] { button(form, "NEW", "tlbWeek").trigger(); },
                    [&](QWidget& dialog) {
                        for (int at = 0; at < 4; ++at) {
                            auto& combo = find<QComboBox>(dialog, QString("cboComboBox(%1)").arg(at));
                            items.append(QStringList());
                            for (int item = 0; item < combo.count(); ++item)
                                items.last().append(combo.itemText(item));
                        }
                        dialog.close();
                    });
    ASSERT_EQ(items.size(), 4);
    EXPECT_EQ(items[0],
              (QStringList{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}));
    EXPECT_EQ(items[1].size(), 24);
    EXPECT_EQ(items[1].first() + items[1].last(), "0023");
    EXPECT_EQ(items[2].size(), 60);
    EXPECT_EQ(items[2].first() + items[2].last(), "0059");
    EXPECT_EQ(items[3], (QStringList{"Main Chat", "Private Message"}));
}

TEST_F(ArchiveForms, TheChangeTimesDialogStartsWithTheBoxsTime)
{
    auto& form = openFor("Hyperlink", "LinkOfTheWeek");
    auto dialogs =
        entering({{{"Monday"}, "cmdCancel"}}, [&] { button(form, "EDIT", "tlbChangeTime").trigger(); });
    EXPECT_EQ(dialogs.value(0).values, (QStringList{"Sunday", "17", "59"}));
    EXPECT_EQ(changeTime(form).text(), "Sunday 17:59");
    EXPECT_FALSE(isDirty(form));
    changeTime(form).setText(" 17:59"); // as the form loads what it saved itself
    dialogs = entering({{{}, "cmdCancel"}}, [&] { button(form, "EDIT", "tlbChangeTime").trigger(); });
    EXPECT_EQ(dialogs.value(0).values, (QStringList{"", "17", "59"}));
}

TEST_F(ArchiveForms, AChangeTimeCanBeTyped)
{
    auto& form = openFor("Hyperlink", "LinkOfTheWeek");
    changeTime(form).selectAll();
    QTest::keyClicks(&changeTime(form), "Friday 20:15");
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_NE(file("Hyperlink", "ItemOfTheWeek").find("\tsChangeTime = Friday 20:15,\r\n"),
              std::string::npos);
}

TEST_F(ArchiveForms, AfterASaveTheChangeTimeLoadsWithoutItsDay)
{
    auto& form = openFor("Hyperlink", "LinkOfTheWeek");
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    button(form, "SAVE").trigger();
    EXPECT_EQ(changeTime(form).text(), "Sunday 17:59");
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(changeTime(form).text(), " 17:59");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(ArchiveForms, AnAnnouncementIsEditedByADoubleClick)
{
    file("Arcade", "ItemOfTheWeek") = golden("archive/ArcadeItemOfTheWeek.save.tbl");
    auto& form = openFor("Arcade", "LinkOfTheWeek");
    EXPECT_EQ(changeTime(form).text(), " 09:05");
    auto dialogs =
        entering({{{QString(), QString(), "45", "Main Chat"}}}, [&] { doubleClickRow(week(form), 1); });
    EXPECT_EQ(dialogs, (QList<SeenDialog>{{"frmGlobalEditFourCombos",
                                           " Announcement",
                                           {"Day", "Hour", "Minute", "Location"},
                                           {"Sunday", "00", "00", "Private Message"}}}));
    EXPECT_EQ(shown(week(form)), (QStringList{"Friday|18:30|Main", "Sunday|00:45|Main"}));
    week(form).select(0);
    dialogs = entering({{{}, "cmdCancel"}}, [&] { button(form, "EDIT", "tlbWeek").trigger(); });
    EXPECT_EQ(dialogs.value(0).values, (QStringList{"Friday", "18", "30", "Main Chat"}));
    EXPECT_TRUE(isDirty(form));
}

TEST_F(ArchiveForms, TheLastAnnouncementCanGo)
{
    auto& form = openFor("Hyperlink", "LinkOfTheWeek");
    week(form).select(0);
    const auto boxes = answering(QMessageBox::Ok, [&] { button(form, "DELETE", "tlbWeek").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Announcement Time?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Announcement Time?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_TRUE(week(form).isEmpty());
    EXPECT_FALSE(button(form, "DELETE", "tlbWeek").isEnabled());
    EXPECT_FALSE(button(form, "EDIT", "tlbWeek").isEnabled());
    EXPECT_TRUE(isDirty(form));
}

TEST_F(ArchiveForms, ARestoreOfAWeekShowsTheDefaults)
{
    for (const QString& member : members) {
        auto& form = openFor(member, "LinkOfTheWeek");
        restore(form);
        EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
        EXPECT_EQ(changeTime(form).text(), "Sunday 17:59");
        EXPECT_EQ(shown(week(form)), QStringList{"Sunday|18:00|PM"});
        EXPECT_TRUE(isDirty(form));
        EXPECT_TRUE(member == "Hyperlink" || !has(member, "ItemOfTheWeek"));
    }
}

TEST_F(ArchiveForms, TheWeeksFileIsReadOnce)
{
    hub.store.readings.clear();
    openFor("Hyperlink", "LinkOfTheWeek");
    EXPECT_EQ(hub.store.readings[hub.root + "/TheArchive/Hyperlink/HyperlinkItemOfTheWeek.tbl"], 1);
}

TEST_F(ArchiveForms, NewItemsAreSavedAndRestored)
{
    for (const QString& member : members) {
        auto& form = openFor(member, "NewLinks");
        auto& number = find<NumberBox>(form, "updUpDown(0)");
        restore(form);
        EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
        EXPECT_EQ(number.text(), "5");
        number.stepBy(99);
        EXPECT_EQ(number.text(), "50");
        number.stepBy(-99);
        EXPECT_EQ(number.text(), "1");
        button(form, "SAVE").trigger();
        EXPECT_FALSE(isDirty(form));
        std::string expected = golden("archive/ArcadeNewItems.save.tbl");
        expected.replace(1, 6, member.toStdString());
        EXPECT_TRUE(sameBytes(file(member, "NewItems"), expected));
    }
}

TEST_F(ArchiveForms, AGridShowsEachCommandOnceWithEveryProfile)
{
    auto& form = openFor("Arcade", "Permissions");
    EXPECT_EQ(shown(grid(form)),
              (QStringList{"Clear|Unregistered|No",    "|Master|No", "|Operator|No", "|VIP|No",
                           "Delete|Unregistered|No",   "|Master|No", "|Operator|No", "|VIP|No",
                           "Modify|Unregistered|No",   "|Master|No", "|Operator|No", "|VIP|No",
                           "NewItems|Unregistered|No", "|Master|No", "|Operator|No", "|VIP|No",
                           "Submit|Unregistered|No",   "|Master|No", "|Operator|No", "|VIP|No"}));
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(grid(form).model()->headerData(column, Qt::Horizontal),
                  (QStringList{"Command", "Profile", "Setting"})[column]);
    EXPECT_EQ(grid(form).model()->columnCount(), 3);
}

TEST_F(ArchiveForms, AClickAndTheButtonToggleARow)
{
    auto& form = openFor("Arcade", "Permissions");
    clickRow(grid(form), 6);
    EXPECT_EQ(shown(grid(form))[6], "|Operator|Yes");
    EXPECT_TRUE(isDirty(form));
    button(form, "EDIT", "tlbListview").trigger();
    EXPECT_EQ(shown(grid(form))[6], "|Operator|No");
    clickRow(grid(form), 6);
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(file("Arcade", "EnableDelete"), golden("archive/ArcadeEnableDelete.save.tbl")));
    EXPECT_EQ(shown(grid(form))[6], "|Operator|Yes");
}

TEST_F(ArchiveForms, TheLastCommandsFileIsNeverWrittenSoItsChangeIsLostOnSave)
{
    for (const QString& member : members) {
        const std::string before = has(member, "EnableSubmit") ? file(member, "EnableSubmit") : "";
        auto& form = openFor(member, "Permissions");
        clickRow(grid(form), 17);
        EXPECT_EQ(shown(grid(form))[17], "|Master|Yes");
        button(form, "SAVE").trigger();
        EXPECT_EQ(shown(grid(form))[17], "|Master|No");
        for (const std::string command : {"Clear", "Delete", "Modify", "NewItems"})
            EXPECT_EQ(tableIn(member, "Enable" + command), "t" + member.toStdString() + "Enable" + command);
        EXPECT_EQ(has(member, "EnableSubmit") ? file(member, "EnableSubmit") : "", before);
    }
}

TEST_F(ArchiveForms, TheGridsLastFileStaysAsItWas)
{
    file("Arcade", "EnableSubmit") = "tArcadeEnableSubmit = {\r\n\t[0] = \"1\",\r\n}\r\n";
    auto& form = openFor("Arcade", "Permissions");
    EXPECT_EQ(shown(grid(form))[17], "|Master|Yes");
    clickRow(grid(form), 17);
    button(form, "SAVE").trigger();
    EXPECT_EQ(shown(grid(form))[17], "|Master|Yes");
    EXPECT_EQ(file("Arcade", "EnableSubmit"), "tArcadeEnableSubmit = {\r\n\t[0] = \"1\",\r\n}\r\n");
}

TEST_F(ArchiveForms, TheFiltersShowOneCommandOrOneProfile)
{
    auto& form = openFor("Arcade", "Permissions");
    EXPECT_EQ(button(form, "COMMAND", "tlbListview").toolTip(), "View By Command");
    EXPECT_EQ(button(form, "PROFILE", "tlbListview").toolTip(), "View By Profile");
    EXPECT_EQ(entries(form, "COMMAND"), (QStringList{"C*Clear=Clear", "C*Delete=Delete", "C*Modify=Modify",
                                                     "C*NewItems=NewItems", "C*Submit=Submit"}));
    EXPECT_EQ(entries(form, "PROFILE"),
              (QStringList{"Unregistered=Unregistered", "Master=Master", "Operator=Operator", "VIP=VIP"}));
    choose(form, "PROFILE", "Operator");
    EXPECT_EQ(shown(grid(form)), (QStringList{"Clear|Operator|No", "Delete|Operator|No", "Modify|Operator|No",
                                              "NewItems|Operator|No", "Submit|Operator|No"}));
    choose(form, "COMMAND", "C*Modify");
    EXPECT_EQ(shown(grid(form)), QStringList{"Modify|Operator|No"});
    button(form, "PROFILE", "tlbListview").trigger();
    EXPECT_EQ(shown(grid(form)).size(), 4);
    button(form, "COMMAND", "tlbListview").trigger();
    EXPECT_EQ(shown(grid(form)).size(), 20);
}

TEST_F(ArchiveForms, WhatAFilterHidesIsSavedAllTheSame)
{
    auto& form = openFor("Arcade", "Permissions");
    clickRow(grid(form), 6);
    choose(form, "COMMAND", "C*Clear");
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(file("Arcade", "EnableDelete"), golden("archive/ArcadeEnableDelete.save.tbl")));
    EXPECT_EQ(shown(grid(form)).size(), 4);
}

TEST_F(ArchiveForms, RightClicksAreSavedUnderTheirShorterTableNames)
{
    auto& form = openFor("Hyperlink", "RightClicks");
    EXPECT_EQ(shown(grid(form)).filter("Unregistered"),
              (QStringList{"Category|Unregistered|No", "Item|Unregistered|No", "Pending|Unregistered|No",
                           "Voting|Unregistered|No"}));
    const std::string voting = file("Hyperlink", "RCEnableVoting");
    clickRow(grid(form), 4);
    clickRow(grid(form), 12);
    button(form, "SAVE").trigger();
    EXPECT_TRUE(
        sameBytes(file("Hyperlink", "RCEnableItem"), golden("archive/HyperlinkRCEnableItem.save.tbl")));
    for (const std::string command : {"Category", "Item", "Pending"})
        EXPECT_EQ(tableIn("Hyperlink", "RCEnable" + command), "tHyperlinkEnable" + command);
    EXPECT_EQ(shown(grid(form))[4], "Item|Unregistered|Yes");
    EXPECT_EQ(shown(grid(form))[12], "Voting|Unregistered|No"); // the last command is never written
    EXPECT_EQ(file("Hyperlink", "RCEnableVoting"), voting);
}

TEST_F(ArchiveForms, APressOfTheRightClickButtonDoesNotTakeItsFilterOff)
{
    auto& form = openFor("Hyperlink", "RightClicks");
    auto& filter = button(form, "RIGHTCLICK", "tlbListview");
    EXPECT_EQ(filter.toolTip(), "View By Right Click");
    EXPECT_EQ(entries(form, "RIGHTCLICK"),
              (QStringList{"C*Category=Category", "C*Item=Item", "C*Pending=Pending", "C*Voting=Voting"}));
    choose(form, "RIGHTCLICK", "C*Pending");
    EXPECT_EQ(shown(grid(form)).size(), 4);
    filter.trigger();
    EXPECT_EQ(shown(grid(form)).size(), 4);
    EXPECT_TRUE(filter.isChecked());
    choose(form, "PROFILE", "VIP");
    button(form, "PROFILE", "tlbListview").trigger();
    EXPECT_EQ(shown(grid(form)).size(), 4);
}

TEST_F(ArchiveForms, ADiscardShowsTheFilesAgain)
{
    auto& form = openFor("Arcade", "Permissions");
    clickRow(grid(form), 6);
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(shown(grid(form))[6], "|Operator|No");
    EXPECT_FALSE(isDirty(form));
}

} // namespace
} // namespace quillfen
