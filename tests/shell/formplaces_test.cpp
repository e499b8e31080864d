// A form that is opened again in the same run.
#include "shell/kit/rowlist.h"
#include "support/formtest.h"

#include <QHeaderView>

namespace quillfen {
namespace {

class FormPlaces : public test::FormTest
{
protected:
    static QMdiSubWindow& subWindow(const EditorForm& form)
    {
        return *qobject_cast<QMdiSubWindow*>(form.parentWidget());
    }

    /// Closes the form and opens it again.
    EditorForm& again(EditorForm& form, const char* key)
    {
        close(form);
        return open(key);
    }
};

TEST_F(FormPlaces, AreWhereTheFormsStoodAsLargeAsTheyWere)
{
    auto& form = open("General~Settings");
    const QRect first = subWindow(form).geometry();
    const QRect moved(first.topLeft() + QPoint(31, 17), first.size() - QSize(20, 30));
    subWindow(form).setGeometry(moved);
    EXPECT_EQ(subWindow(again(form, "General~Settings")).geometry(), moved);
    EXPECT_NE(subWindow(open("General~Switches")).geometry(), moved) << "this one wasn't open yet";
}

TEST_F(FormPlaces, OfAMaximisedFormAreTheWholeAreaAndThenWhereItStoodBefore)
{
    auto* form = &open("General~Settings");
    const QRect moved = subWindow(*form).geometry().translated(31, 17);
    subWindow(*form).setGeometry(moved);
    subWindow(*form).showMaximized();
    form = &again(*form, "General~Settings");
    EXPECT_TRUE(subWindow(*form).isMaximized());
    subWindow(*form).showNormal();
    EXPECT_EQ(subWindow(*form).geometry(), moved);
    subWindow(*form).showMaximized();
    close(*form);
    open("General~Switches");
    EXPECT_FALSE(subWindow(open("General~Settings")).isMaximized()) << "as the form before isn't";
}

TEST_F(FormPlaces, OfAMinimisedFormAreWhereItStoodBefore)
{
    auto& form = open("General~Settings");
    const QRect moved = subWindow(form).geometry().translated(31, 17);
    subWindow(form).setGeometry(moved);
    subWindow(form).showMinimized();
    EXPECT_EQ(subWindow(again(form, "General~Settings")).geometry(), moved);
}

TEST_F(FormPlaces, KeepTheWidthsOfColumnsAlsoWhenTheFormLoadsAnew)
{
    const char* key = "General~Bots";
    auto* form = &open(key);
    find<RowList>(*form, "lvwBots").header()->resizeSection(0, 277);
    form = &again(*form, key);
    auto* header = find<RowList>(*form, "lvwBots").header();
    EXPECT_EQ(header->sectionSize(0), 277);
    form->loadAnew();
    EXPECT_EQ(header->sectionSize(0), 277);
}

TEST_F(FormPlaces, KeepTheFiltersOfAGrid)
{
    const char* key = "Security~Kicks~Permissions";
    auto* form = &open(key);
    const QStringList all = shown(find<QTreeView>(*form, "lvwPermissions"));
    find<QAction>(*form, "C*Ban").trigger();
    find<QAction>(*form, "Master").trigger();
    const QStringList filtered = shown(find<QTreeView>(*form, "lvwPermissions"));
    ASSERT_LT(filtered.size(), all.size());
    form = &again(*form, key);
    EXPECT_EQ(shown(find<QTreeView>(*form, "lvwPermissions")), filtered);
    EXPECT_FALSE(form->isDirty());
    for (const char* filter : {"COMMAND", "PROFILE"}) {
        EXPECT_TRUE(button(*form, filter, "tlbListview").isChecked());
        button(*form, filter, "tlbListview").trigger();
    }
    EXPECT_EQ(shown(find<QTreeView>(*form, "lvwPermissions")), all);
    form = &again(*form, key);
    EXPECT_EQ(shown(find<QTreeView>(*form, "lvwPermissions")), all);
}

TEST_F(FormPlaces, KeepTheFilterOfAList)
{
    const char* key = "Communication~AutoCorrect";
    auto* form = &open(key);
    const auto shownRows = [&form] { return find<RowList>(*form, "lvwEnabledProfiles").shownRows(); };
    const auto filter = [&form] { return find<RowList>(*form, "lvwEnabledProfiles").filter(); };
    find<RowList>(*form, "lvwEnabledProfiles").openFilter();
    QTest::keyClicks(QApplication::focusWidget(), "vip");
    ASSERT_EQ(shownRows().size(), 1U);
    form = &again(*form, key);
    EXPECT_EQ(filter(), "vip");
    EXPECT_EQ(shownRows().size(), 1U);
    EXPECT_FALSE(form->isDirty());
    find<RowList>(*form, "lvwEnabledProfiles").openFilter();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    form = &again(*form, key);
    EXPECT_EQ(filter(), "");
    EXPECT_EQ(shownRows().size(), 4U);
}

TEST_F(FormPlaces, LeaveAFilterBehindThatNoPressTakesOff)
{
    const char* key = "Hyperlink~RightClicks";
    auto* form = &open(key);
    const QStringList all = shown(find<QTreeView>(*form, "lvwPermissions"));
    find<QAction>(*form, "C*Pending").trigger();
    form = &again(*form, key);
    EXPECT_EQ(shown(find<QTreeView>(*form, "lvwPermissions")), all) << "opening it again was the way out";
    EXPECT_FALSE(button(*form, "RIGHTCLICK", "tlbListview").isChecked());
}

TEST_F(FormPlaces, KeepNothingThatAFileHolds)
{
    auto& form = open("General~Settings");
    QTest::keyClicks(&find<QWidget>(form, "txtTextBox(0)"), "x");
    test::answering(QMessageBox::Ok, [&form] { close(form); });
    EXPECT_FALSE(open("General~Settings").isDirty());
}

} // namespace
} // namespace quillfen
