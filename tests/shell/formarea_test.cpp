#include "shell/mainwindowtest.h"

#include <QScrollBar>

namespace quillfen {
namespace {

using FormArea = test::MainWindowTest;

TEST_F(FormArea, ChoosingAnOpenFormBringsItForward)
{
    auto& settings = open("General~Settings");
    open("General~Switches");
    find<QAction>(window(), "mnuWindows1").trigger();
    EXPECT_EQ(area().currentSubWindow()->widget(), &settings);
    qobject_cast<QMdiSubWindow*>(settings.parentWidget())->showMinimized();
    EXPECT_EQ(&open("General~Settings"), &settings);
    EXPECT_FALSE(settings.parentWidget()->isMinimized());
    EXPECT_FALSE(settings.parentWidget()->isMaximized());
}

TEST_F(FormArea, ChoosingTheActiveFormLeavesItMaximised)
{
    auto& settings = open("General~Settings");
    qobject_cast<QMdiSubWindow*>(settings.parentWidget())->showMaximized();
    EXPECT_EQ(&open("General~Settings"), &settings);
    EXPECT_TRUE(settings.parentWidget()->isMaximized());
}

TEST_F(FormArea, AFormThatOpensWhileAnotherIsMaximisedIsMaximisedToo)
{
    window().resize(1180, 780);
    subWindow(open("General~Settings")).showMaximized();
    for (const char* key : {"General~Switches", "General~Bots"}) {
        auto& opened = subWindow(open(key));
        EXPECT_TRUE(opened.isMaximized());
        EXPECT_EQ(opened.geometry(), area().viewport()->rect());
        EXPECT_EQ(area().currentSubWindow(), &opened);
    }
    auto& last = subWindow(open("General~Bots"));
    last.showNormal();
    EXPECT_EQ(last.size(), last.size().expandedTo(last.widget()->minimumSizeHint()));
    EXPECT_GT(last.height(), last.widget()->height()) << "it has its title bar";
    EXPECT_FALSE(subWindow(open("General~News")).isMaximized());
}

TEST_F(FormArea, AMinimisedFormThatIsChosenWhileAnotherIsMaximisedIsShown)
{
    auto& settings = subWindow(open("General~Settings"));
    settings.showMinimized();
    subWindow(open("General~Switches")).showMaximized();
    open("General~Settings");
    EXPECT_EQ(area().currentSubWindow(), &settings);
    EXPECT_FALSE(settings.isMinimized());
    EXPECT_GE(settings.height(), settings.widget()->minimumHeight());
}

TEST_F(FormArea, AFormOutOfSightComesIntoSightWhenItIsChosen)
{
    window().resize(1180, 780);
    auto& settings = subWindow(open("General~Settings"));
    auto& switches = subWindow(open("General~Switches"));
    const QRect& room = area().viewport()->rect();
    switches.move(room.right() - 100, room.bottom() - 100);
    settings.move(0, 0);
    open("General~Settings");
    window().resize(window().minimumSize());
    EXPECT_FALSE(area().viewport()->rect().contains(switches.geometry()));
    EXPECT_TRUE(area().horizontalScrollBar()->isVisible());
    EXPECT_TRUE(area().verticalScrollBar()->isVisible());
    for (auto* chosen : {&switches, &settings}) {
        open(chosen == &switches ? "General~Switches" : "General~Settings");
        EXPECT_TRUE(area().viewport()->rect().contains(chosen->geometry()));
    }
    auto& opened = subWindow(open("General~Bots"));
    EXPECT_TRUE(area().viewport()->rect().contains(opened.geometry()));
}

TEST_F(FormArea, OfAFormLargerThanTheAreaItsBeginningComesIntoSight)
{
    auto& settings = subWindow(open("General~Settings"));
    settings.resize(3000, 2000);
    settings.move(-700, -500);
    open("General~Settings");
    EXPECT_EQ(settings.pos(), QPoint());
    settings.move(400, 300);
    open("General~Settings");
    EXPECT_EQ(settings.pos(), QPoint());
}

TEST_F(FormArea, AClickOnAFormHalfInSightDoesNotMoveItAway)
{
    auto& settings = subWindow(open("General~Settings"));
    auto& switches = subWindow(open("General~Switches"));
    switches.move(0, 0);
    settings.move(area().viewport()->width() - 150, 0);
    const QPoint before = settings.pos();
    auto& toolbar = find<QWidget>(settings, "tlbFormToolbar");
    QTest::mousePress(&toolbar, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(settings.pos(), before);
    QTest::mouseRelease(&toolbar, Qt::LeftButton, {}, {5, 5});
}

TEST_F(FormArea, TheEmptyAreaSaysHowToBeginUntilTheFirstFormOpens)
{
    QPointer<QLabel> told = &find<QLabel>(window(), "lblHowToBegin");
    EXPECT_TRUE(told->isVisible());
    EXPECT_TRUE(area().rect().contains(QRect(told->mapTo(&area(), QPoint()), told->size())));
    EXPECT_TRUE(told->text().contains("tree"));
    EXPECT_TRUE(told->text().contains("Ctrl+F"));
    auto& form = open("General~Settings");
    EXPECT_FALSE(told);
    subWindow(form).close();
    EXPECT_EQ(window().findChild<QLabel*>("lblHowToBegin"), nullptr);
}

TEST_F(FormArea, AFormThatAsksAsTheProgramClosesComesToTheFront)
{
    auto& settings = open("General~Settings");
    open("General~Bots");
    QTest::keyClicks(&find<QWidget>(settings, "txtTextBox(0)"), "x");
    subWindow(settings).showMinimized();
    open("General~Switches");
    const auto boxes = test::answering(QMessageBox::Cancel, [this] { window().close(); });
    EXPECT_EQ(boxes.size(), 1);
    EXPECT_EQ(area().currentSubWindow(), &subWindow(settings));
    EXPECT_FALSE(settings.parentWidget()->isMinimized());
}

} // namespace
} // namespace quillfen
