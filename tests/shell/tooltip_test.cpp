#include "shell/kit/tooltip.h"
#include "support/formtest.h"

namespace quillfen {
namespace {

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

TEST(Tooltip, WaitsForItsDelay)
{
    QWidget parent;
    parent.show();
    CTooltip tooltip;
    tooltip.setDelayTime(60'000); // so long that no slow machine gets there
    tooltip.Create(&parent, {0, 0});
    QCoreApplication::processEvents();
    EXPECT_FALSE(parent.findChild<QWidget*>("CTooltip")->isVisible());
}

TEST(Tooltip, OnlyABalloonLeavesRoomForItsPointer)
{
    QWidget parent;
    parent.show();
    const auto coversItsUpperEdge = [&parent](CTooltip::Style style) {
        CTooltip tooltip;
        tooltip.setStyle(style);
        tooltip.setDelayTime(0);
        tooltip.setText("Allows users to be muted");
        tooltip.Create(&parent, {0, 0});
        auto* window = parent.findChild<QWidget*>("CTooltip");
        EXPECT_TRUE(QTest::qWaitFor([window] { return window->isVisible(); }));
        const bool covers = window->mask().contains({window->width() / 2, 2});
        tooltip.Destroy();
        return covers;
    };
    EXPECT_FALSE(coversItsUpperEdge(CTooltip::Style::Balloon));
    EXPECT_TRUE(coversItsUpperEdge(CTooltip::Style::Plain));
}

} // namespace
} // namespace quillfen
