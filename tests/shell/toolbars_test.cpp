#include "shell/icons/icons.h"
#include "shell/kit/toolbars.h"
#include "support/formtest.h"

#include <QLineEdit>
#include <QToolButton>
#include <QTreeWidget>

namespace quillfen {
namespace {

TEST(Icons, AreLoadedOnceForAllForms)
{
    EXPECT_EQ(themedIcon("save").cacheKey(), themedIcon("save").cacheKey());
    EXPECT_NE(themedIcon("save").cacheKey(), themedIcon("edit").cacheKey());
    EXPECT_FALSE(themedIcon("save").pixmap(16, 16).isNull());
}

QStringList keysAndTips(const QToolBar& toolbar)
{
    QStringList seen;
    for (auto* action : toolbar.actions())
        seen.append(action->isSeparator() ? QStringLiteral("|")
                                          : action->objectName() + '=' + action->toolTip());
    return seen;
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
    EXPECT_FALSE(form.isFloatable());
    QToolBar file;
    index = 0;
    BuildFileEditToolbar(file, index);
    for (auto* action : file.actions())
        EXPECT_FALSE(action->isEnabled());
}

TEST(Toolbars, TabGoesAlongTheButtonsAsTheyStand)
{
    QWidget window;
    auto* toolbar = new QToolBar(&window);
    auto* before = new QLineEdit(&window);
    int index = 0;
    BuildListToolbar(*toolbar, index);
    index = 0;
    addButton(*toolbar, index, "OPEN", "Open", "open");
    AddAmendButton(*toolbar, index);
    letTabReachButtons(window);
    QStringList keys;
    for (QWidget* each = window.nextInFocusChain(); each != &window; each = each->nextInFocusChain()) {
        const auto* pressed = qobject_cast<QToolButton*>(each);
        if (pressed && pressed->defaultAction())
            keys.append(pressed->defaultAction()->objectName());
        else if (each == before)
            keys.append("before");
    }
    EXPECT_EQ(keys, (QStringList{"before", "OPEN", "AMEND", "NEW", "DELETE", "EDIT"}));
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

} // namespace
} // namespace quillfen
