#include "shell/kit/contraststyle.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/tablefilepart.h"
#include "support/formtest.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace quillfen {
namespace {

/// The controls of one declared file, in a window that is far too wide for them.
class Layout : public testing::Test
{
protected:
    QWidget& laidOut(std::vector<Setting> settings)
    {
        m_file = {"A.tbl", "tSample", std::move(settings)};
        m_part = std::make_unique<TableFilePart>(m_file, FormContext{hub.files, hub.profiles});
        m_widget.reset(m_part->widget());
        m_part->load();
        m_widget->resize(1600, 700);
        m_widget->show();
        return *m_widget;
    }

    /// The check lists of so many settings, by their places.
    std::vector<QRect> listsOf(int count)
    {
        std::vector<Setting> settings;
        for (int place = 0; place < count; ++place) {
            const std::string number = std::to_string(place);
            settings.push_back(profileFlags("t" + number, "lvw" + number, "List " + number));
        }
        const QWidget& widget = laidOut(settings);
        std::vector<QRect> places;
        for (int place = 0; place < count; ++place)
            places.push_back(widget.findChild<RowList*>(QStringLiteral("lvw%1").arg(place))->geometry());
        return places;
    }

    test::Hub hub;

private:
    TableFile m_file;
    std::unique_ptr<TableFilePart> m_part;
    std::unique_ptr<QWidget> m_widget;
};

TEST_F(Layout, NumbersAndChoicesKeepTheirWidthAndTextsAreOfAReadableOne)
{
    Setting days = number("iDays", "txtUpDown(1)", "Days", "5", 1, 9);
    days.unit = "Days";
    auto& widget = laidOut({number("iNumber", "txtUpDown(0)", "Number", "5", 1, 9), days,
                            letter("sAction", "cboComboBox", "Action", "K", {"Kick", "Ban"}),
                            text("sText", "txtTextBox", "Text", "")});
    for (const char* name : {"updUpDown(0)", "updUpDown(1)", "cboComboBox"}) {
        const auto* field = widget.findChild<QWidget*>(name);
        EXPECT_EQ(field->width(), field->sizeHint().width()) << name;
    }
    const auto* text = widget.findChild<QLineEdit*>("txtTextBox");
    const int character = text->fontMetrics().averageCharWidth();
    EXPECT_EQ(text->width(), 64 * character);
    EXPECT_EQ(text->minimumWidth(), 24 * character);
    const auto leftOf = [&widget](const char* name) {
        return widget.findChild<QWidget*>(name)->mapTo(&widget, QPoint()).x();
    };
    EXPECT_EQ(leftOf("txtTextBox"), leftOf("updUpDown(0)")) << "the fields stand below each other";
}

TEST_F(Layout, TwoCheckListsStandBelowEachOther)
{
    const auto places = listsOf(2);
    EXPECT_EQ(places[0].left(), places[1].left());
    EXPECT_LT(places[0].bottom(), places[1].top());
}

TEST_F(Layout, FourCheckListsMakeASquare)
{
    const auto places = listsOf(4);
    EXPECT_EQ(places[0].top(), places[1].top());
    EXPECT_EQ(places[2].left(), places[0].left());
    EXPECT_EQ(places[3].left(), places[1].left());
    EXPECT_EQ(places[3].top(), places[2].top());
}

TEST_F(Layout, ALastRowOfFewerCheckListsLeavesNoPlaceEmpty)
{
    const auto places = listsOf(5);
    EXPECT_EQ(places[0].top(), places[2].top());
    EXPECT_EQ(places[3].top(), places[4].top());
    EXPECT_EQ(places[4].right(), places[2].right());
    EXPECT_EQ(places[3].left(), places[0].left());
    EXPECT_NEAR(places[3].width(), places[4].width(), 1);
}

TEST(ListLayout, ColumnsOpenAsWideAsTheirTextsWithinReason)
{
    RowList list("lvwRows", {"A", "B", "C"}, false);
    const int character = list.fontMetrics().averageCharWidth();
    const int unfitted = list.columnWidth(0);
    list.setRows({});
    EXPECT_EQ(list.columnWidth(0), unfitted) << "no row tells";
    list.setRows({{{"a", std::string(200, 'b'), std::string(2000, 'c')}}});
    EXPECT_EQ(list.columnWidth(0), 10 * character);
    EXPECT_EQ(list.columnWidth(1), 40 * character);
    EXPECT_LE(list.sizeHint().width(), (10 + 40 + 60 + 4) * character);
    list.header()->resizeSection(0, 77);
    list.setRows({{{"another", "b", "c"}}});
    EXPECT_EQ(list.columnWidth(0), 77) << "from then on they are the user's";
}

TEST(ListLayout, AListOfManyRowsScrolls)
{
    RowList list("lvwRows", {"A"}, false);
    list.setRows(std::vector<CellRow>(4000, {{"a"}}));
    EXPECT_LT(list.sizeHint().height(), 500);
}

/// How far the frame of a tick box or option stands out from its inside: 0 for not at all.
int frameContrast(const QPalette& palette, QStyle::PrimitiveElement element, QStyle& style)
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(palette.color(QPalette::Base));
    QPainter painter(&image);
    QStyleOptionButton option;
    option.palette = palette;
    option.rect = {0, 0, 14, 14};
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    style.drawPrimitive(element, &option, &painter, nullptr);
    painter.end();
    return std::abs(image.pixelColor(0, 7).lightness() - palette.color(QPalette::Base).lightness());
}

TEST(Contrast, TickBoxesAndOptionsCanBeSeenInADarkPalette)
{
    ContrastStyle style;
    style.setBaseStyle(QStyleFactory::create("fusion"));
    const QPalette dark(QColor(0x3b, 0x3d, 0x40), QColor(0x2b, 0x2d, 0x30));
    const QPalette light = style.standardPalette();
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        EXPECT_GT(frameContrast(dark, element, style), 40);
        EXPECT_EQ(frameContrast(light, element, style), frameContrast(light, element, *style.baseStyle()))
            << "a light palette needs nothing";
    }
}

} // namespace
} // namespace quillfen
