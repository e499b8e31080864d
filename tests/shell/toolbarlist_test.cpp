#include "shell/kit/rowlist.h"
#include "shell/kit/toolbarlist.h"
#include "support/formtest.h"

#include <QLabel>

namespace quillfen {
namespace {

/// A list of two rows below a toolbar, which counts the presses of its buttons.
class ToolbarLists : public test::FormTest
{
protected:
    ToolbarLists() { list->setRows({{{"a"}}, {{"b"}}}); }

    ToolbarList& make(const ToolbarListNames& names, const std::vector<ToolbarBuilder>& builders)
    {
        tools.reset(new ToolbarList(list, names, builders, {hub.files, hub.profiles}));
        for (const auto* action : tools->toolbar().actions())
            QObject::connect(action, &QAction::triggered, tools.get(),
                             [this, key = action->objectName()] { pressed.append(key); });
        return *tools;
    }

    QStringList keys() const
    {
        QStringList all;
        for (const auto* action : tools->toolbar().actions())
            all.append(action->objectName() + (action->isEnabled() ? "+" : "-"));
        return all;
    }

    RowList* list = new RowList("lvwRows", {"Rows"}, false);
    std::unique_ptr<ToolbarList> tools;
    QStringList pressed;
};

TEST_F(ToolbarLists, HaveTheButtonsOfTheirBuildersInThatOrder)
{
    make({"tlbRows", "Things"}, {BuildListToolbar, AddAmendButton});
    EXPECT_EQ(keys(), (QStringList{"NEW+", "DELETE+", "EDIT+", "AMEND+"}));
    EXPECT_EQ(tools->toolbar().objectName(), "tlbRows");
    EXPECT_EQ(tools->toolbar().iconSize(), QSize(16, 16));
    EXPECT_EQ(list->accessibleName(), "Things");
}

TEST_F(ToolbarLists, PressTheButtonsByDoubleClickAndDeleteKey)
{
    make({"tlbRows", "Things"}, {BuildListToolbar});
    emit list->editAsked();
    emit list->deleteAsked();
    EXPECT_EQ(pressed, (QStringList{"EDIT", "DELETE"}));
}

TEST_F(ToolbarLists, PressEditByF2AndNewByInsertWhileTheyAreLit)
{
    make({"tlbRows", "Things", {}, {}, "AMEND"}, {BuildListToolbar, AddAmendButton}).show();
    tools->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(tools.get()));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(list, Qt::Key_Insert);
    EXPECT_EQ(pressed, (QStringList{"EDIT", "NEW"}));
    for (const char* key : {"EDIT", "NEW"})
        tools->tool(key).setEnabled(false);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(list, Qt::Key_Insert);
    EXPECT_EQ(pressed.size(), 2);
}

TEST_F(ToolbarLists, DoNothingByKeysWhereTheButtonIsDarkOrMissing)
{
    make({"tlbRows", "Things"}, {AddEditButton});
    tools->tool("EDIT").setEnabled(false);
    emit list->editAsked();
    emit list->deleteAsked();
    EXPECT_EQ(pressed, QStringList());
}

TEST_F(ToolbarLists, PressNothingByADoubleClickWhereNoButtonIsNamed)
{
    ToolbarListNames names{"tlbRows", "Things"};
    names.activates.clear();
    make(names, {AddEditButton});
    emit list->editAsked();
    EXPECT_EQ(pressed, QStringList());
}

TEST_F(ToolbarLists, LightTheButtonsThatNeedARowWhileThereAreRows)
{
    make({"tlbRows", "Things"}, {BuildListToolbar, AddAmendButton, AddEditAllButton});
    list->setRows({});
    EXPECT_EQ(keys(), (QStringList{"NEW+", "DELETE+", "EDIT+", "AMEND+", "EDITALL+"}))
        << "nobody asked for it";
    tools->letRowsLightButtons();
    EXPECT_EQ(keys(), (QStringList{"NEW+", "DELETE-", "EDIT-", "AMEND-", "EDITALL+"}));
    list->append({{"a"}});
    EXPECT_EQ(keys(), (QStringList{"NEW+", "DELETE+", "EDIT+", "AMEND+", "EDITALL+"}));
    list->remove(0);
    EXPECT_EQ(keys(), (QStringList{"NEW+", "DELETE-", "EDIT-", "AMEND-", "EDITALL+"}));
}

TEST_F(ToolbarLists, ServeTheBorrowedMenuOfTheirNameByTheirButtons)
{
    make({"tlbRows", "Things", {}, "mnuFirst"}, {BuildListToolbar});
    const RoutineTable routines = tools->routines();
    EXPECT_EQ(routines.size(), 3);
    routines.value("gMenuFirstDeleteClick").serve();
    EXPECT_EQ(pressed, QStringList{"DELETE"});
}

TEST_F(ToolbarLists, TellARemarkAsPlainText)
{
    make({"tlbRows", "Things"}, {AddEditButton}).addRemark("<b>0.3.6.0</b>");
    const auto* remark = tools->findChild<QLabel*>();
    ASSERT_TRUE(remark);
    EXPECT_EQ(remark->text(), "<b>0.3.6.0</b>");
    EXPECT_EQ(remark->textFormat(), Qt::PlainText);
}

} // namespace
} // namespace quillfen
