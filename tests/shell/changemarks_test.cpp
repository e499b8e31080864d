// What differs from the files: dots, counts, and the way back of one setting.
#include "shell/kit/changemarks.h"
#include "shell/kit/controlvalue.h"
#include "shell/kit/formadvice.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolTip>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace quillfen {
namespace {

class ChangeMarksTest : public test::FormTest
{
protected:
    /// The dots that show.
    static int dots(EditorForm& form)
    {
        int count = 0;
        for (const auto* dot : form.findChildren<QWidget*>("CHANGED"))
            count += dot->isVisible() ? 1 : 0;
        return count;
    }

    /// What the second panel says of the form as it stands.
    static QString noteOf(EditorForm& form)
    {
        form.advice()->look();
        return secondPanel(form).text();
    }

    /// The menu of a right click on a control's line of text, or on the control.
    static QMenu& menuOf(QWidget& control)
    {
        auto* line = control.findChild<QLineEdit*>();
        QWidget& clicked = line ? *line : control;
        QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, clicked.mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(&clicked, &event);
        return find<QMenu>(clicked, "mnuSetting");
    }

    EditorForm& kicks() { return open("Security~Kicks~Settings"); }
    static NumberBox& time(EditorForm& form) { return find<NumberBox>(form, "updUpDown(3)"); }
};

TEST_F(ChangeMarksTest, ADotStandsBeforeTheLabelOfWhatDiffersFromTheFile)
{
    auto& form = kicks();
    EXPECT_EQ(dots(form), 0);
    time(form).setText("7");
    ASSERT_EQ(dots(form), 1);
    const auto* dot = form.findChild<QWidget*>("CHANGED");
    const auto* label = [&]() -> QLabel* {
        for (auto* each : form.findChildren<QLabel*>()) {
            if (each->buddy() == &time(form))
                return each;
        }
        return nullptr;
    }();
    ASSERT_NE(label, nullptr);
    const auto onScreen = [](const QWidget& widget) {
        return QRect(widget.mapToGlobal(QPoint()), widget.size());
    };
    EXPECT_LT(onScreen(*dot).right(), onScreen(*label).left());
    EXPECT_GE(onScreen(*dot).center().y(), onScreen(*label).top());
    EXPECT_LE(onScreen(*dot).center().y(), onScreen(*label).bottom());
    time(form).setText("10");
    EXPECT_EQ(dots(form), 0) << "it shows again what the file holds";
}

TEST_F(ChangeMarksTest, SaveAndDiscardTakeTheDotsAway)
{
    auto& form = kicks();
    find<QCheckBox>(form, "chkCheckBox(2)").click();
    EXPECT_EQ(dots(form), 1);
    button(form, "SAVE").trigger();
    EXPECT_EQ(dots(form), 0);
    find<QCheckBox>(form, "chkCheckBox(2)").click();
    EXPECT_EQ(dots(form), 1);
    test::answering(QMessageBox::Ok, [&] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(dots(form), 0);
}

TEST_F(ChangeMarksTest, RestoreMarksWhatItChanged)
{
    auto& form = kicks();
    time(form).setText("7");
    button(form, "SAVE").trigger();
    test::answering(QMessageBox::Ok, [&] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(dots(form), 1);
}

TEST_F(ChangeMarksTest, RowsThatCameWentAndChangedAreCounted)
{
    auto& form = open("Security~BadNickBlocker");
    auto& list = find<RowList>(form, "lvwBadNickList");
    const auto enter = [&](const char* key, const char* text) {
        test::entering({{{text}}}, [&] { button(form, key, "tlbListview").trigger(); });
    };
    enter("NEW", "one");
    enter("NEW", "two");
    enter("NEW", "three");
    EXPECT_EQ(noteOf(form), "3 added");
    button(form, "SAVE").trigger();
    EXPECT_EQ(noteOf(form), "");
    list.select(0);
    enter("EDIT", "four");
    EXPECT_EQ(noteOf(form), "1 changed");
    list.remove(1);
    EXPECT_EQ(noteOf(form), "1 changed, 1 deleted");
}

TEST_F(ChangeMarksTest, ARightClickOffersTheDefaultAndWhatTheFileHolds)
{
    auto& form = kicks();
    time(form).setText("7");
    button(form, "SAVE").trigger();
    time(form).setText("8");
    auto& menu = menuOf(time(form));
    EXPECT_EQ(menu.actions().last()->text(), "As in the &file");
    EXPECT_GT(menu.actions().size(), 3) << "behind a text box's own entries";
    find<QAction>(menu, "mnuSettingStored").trigger();
    EXPECT_EQ(time(form).text(), "7");
    menu.close();
    button(form, "SAVE").trigger();
    find<QAction>(menuOf(time(form)), "mnuSettingDefault").trigger();
    EXPECT_EQ(time(form).text(), "10");
    EXPECT_TRUE(isDirty(form)) << "a change by hand";
}

TEST_F(ChangeMarksTest, WhatIsShownAlreadyIsNotOffered)
{
    auto& form = kicks();
    auto& menu = menuOf(find<QCheckBox>(form, "chkCheckBox(0)"));
    EXPECT_FALSE(find<QAction>(menu, "mnuSettingDefault").isEnabled());
    EXPECT_FALSE(find<QAction>(menu, "mnuSettingStored").isEnabled());
}

TEST_F(ChangeMarksTest, ADefaultThatRestoreLeavesAloneIsNotOffered)
{
    auto& form = open("UserActions~Ascii");
    for (auto* box : form.findChildren<QCheckBox*>()) {
        box->click();
        auto& menu = menuOf(*box);
        EXPECT_TRUE(find<QAction>(menu, "mnuSettingStored").isEnabled());
        menu.close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(ChangeMarksTest, TheFormsIconItsMenuEntryAndItsNodeBearADotWhileThereIsSomethingToSave)
{
    auto& form = kicks();
    auto& tree = find<QTreeWidget>(window(), "tvwFunctions");
    const auto isMarked = [&] {
        bool onNode = false;
        for (QTreeWidgetItemIterator item(&tree); *item; ++item) {
            if ((*item)->data(0, Qt::UserRole).toString() == "Security~Kicks~Settings")
                onNode = !(*item)->icon(0).isNull();
        }
        const bool inMenu = !find<QAction>(window(), "mnuWindows1").icon().isNull();
        EXPECT_EQ(onNode, inMenu);
        return onNode;
    };
    const auto iconOf = [](EditorForm& of) { return of.parentWidget()->windowIcon().pixmap(32).toImage(); };
    const QImage clean = iconOf(form);
    EXPECT_FALSE(isMarked());
    time(form).setText("7");
    EXPECT_TRUE(isMarked());
    EXPECT_NE(iconOf(form), clean);
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(iconOf(form), clean);
    time(form).setText("8");
    test::answering(QMessageBox::Ok, [&] { close(form); });
    EXPECT_FALSE(isMarked()) << "a closed form has nothing to save";
}

class SettingCardsTest : public ChangeMarksTest
{
};

TEST_F(SettingCardsTest, ACardTellsAllOfASetting)
{
    auto& form = kicks();
    const QStringList lines = time(form).whatsThis().split('\n');
    EXPECT_EQ(lines.last(), R"(iKickBanTime in Security\Kick\KickSettings.tbl)");
    EXPECT_TRUE(lines.contains("Range: 1 to 500. Default: 10."));
}

TEST_F(SettingCardsTest, HoveringShowsTheCardWithWhatTheFileHolds)
{
    auto& form = open("Communication~WelcomeInfo~Settings");
    auto& box = find<QCheckBox>(form, "chkCheckBox(0)");
    box.click();
    QHelpEvent help(QEvent::ToolTip, {3, 3}, box.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&box, &help);
    EXPECT_TRUE(QToolTip::text().contains("In the file: on.")) << QToolTip::text().toStdString();
    QToolTip::hideText();
}

TEST_F(SettingCardsTest, F1ShowsTheCardOfTheControlAndASecondTimeAsksForTheGuide)
{
    auto& form = kicks();
    QString asked;
    QObject::connect(&form, &EditorForm::guideAsked, [&asked](const QString& name) { asked = name; });
    time(form).setFocus();
    form.showCard();
    EXPECT_TRUE(QToolTip::text().contains("iKickBanTime"));
    EXPECT_EQ(asked, "");
    test::answering(QMessageBox::Ok, [&form] { form.showCard(); }); // there is no guide beside the tests
    EXPECT_EQ(asked, "frmSecurityKickSettings");
    QToolTip::hideText();
}

TEST_F(SettingCardsTest, AToolTipOfTheControlsOwnComesFirst)
{
    auto& form = open("Communication~WelcomeInfo~Settings");
    auto& box = find<QCheckBox>(form, "chkCheckBox(0)");
    box.setToolTip("told");
    QHelpEvent help(QEvent::ToolTip, {3, 3}, box.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&box, &help);
    EXPECT_EQ(QToolTip::text(), "told");
    QToolTip::hideText();
}

} // namespace
} // namespace quillfen
