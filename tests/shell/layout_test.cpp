#include "shell/kit/contraststyle.h"
#include "shell/kit/listview.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/tablefilepart.h"
#include "support/formtest.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTreeWidget>
#include <QVBoxLayout>

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
            settings.push_back(setting::profileFlags("t" + number, "lvw" + number, "List " + number));
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
    auto& widget = laidOut({setting::number("iNumber", "txtUpDown(0)", "Number", 5, 1, 9),
                            setting::number("iDays", "txtUpDown(1)", "Days", 5, 1, 9, {.unit = "Days"}),
                            setting::letter("sAction", "cboComboBox", "Action", "Kick", {"Kick", "Ban"}),
                            setting::text("sText", "txtTextBox", "Text", "")});
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

QPalette lightPalette()
{
    return {QColor(0xef, 0xef, 0xef), QColor(0xef, 0xef, 0xef)};
}

QPalette darkPalette()
{
    return {QColor(0x3b, 0x3d, 0x40), QColor(0x2b, 0x2d, 0x30)};
}

TEST(Contrast, TickBoxesAndOptionsCanBeSeenInADarkPalette)
{
    ContrastStyle style;
    style.setBaseStyle(QStyleFactory::create("fusion"));
    const QPalette dark = darkPalette();
    const QPalette light = lightPalette();
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        EXPECT_GT(frameContrast(dark, element, style), 40);
        EXPECT_EQ(frameContrast(light, element, style), frameContrast(light, element, *style.baseStyle()))
            << "a light palette needs nothing";
    }
}

QPalette paletteNamed(const std::string& name)
{
    if (name == "Light")
        return lightPalette();
    if (name == "Dark")
        return darkPalette();
    return name == "Black" ? QPalette(Qt::black, Qt::black)
                           : QPalette(QColor(0x50, 0x54, 0x58), QColor(0x46, 0x4a, 0x4e));
}

/// A window of the boxes and lists that forms are made of, in a palette.
class Edges : public testing::TestWithParam<std::string>
{
protected:
    Edges()
    {
        m_style.setBaseStyle(QStyleFactory::create("fusion"));
        window.setPalette(paletteNamed(GetParam()));
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* each : std::initializer_list<QWidget*>{new QLineEdit, new QPlainTextEdit, new QComboBox,
                                                             new NumberBox("txtUpDown(0)", 1, 9),
                                                             new ListView("lvwRows"), new QTreeWidget}) {
            each->setStyle(&m_style);
            layout->addWidget(each);
            boxes.append(each);
        }
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// The colour of a box's left edge, as it is painted.
    static QColor edgeOf(QWidget& box) { return box.grab().toImage().pixelColor(0, box.height() / 2); }

    /// How far a colour stands out from what lies on both sides of an edge.
    double standsOut(const QColor& edge) const
    {
        return std::min(contrast(edge, window.palette().color(QPalette::Base)),
                        contrast(edge, window.palette().color(QPalette::Window)));
    }

    QWidget window;
    QWidgetList boxes;

private:
    ContrastStyle m_style;
};

class DarkEdges : public Edges
{
};

TEST_P(DarkEdges, OfBoxesAndListsCanBeSeen)
{
    for (auto* each : boxes) {
        boxes.value(each == boxes.first() ? 1 : 0)->setFocus();
        EXPECT_GE(standsOut(edgeOf(*each)), 3) << each->metaObject()->className();
        each->setFocus();
        EXPECT_GE(standsOut(edgeOf(*each)), 3) << each->metaObject()->className() << " with the focus";
    }
}

TEST_P(Edges, OfAnEmptyListTellThatItHasTheFocus)
{
    for (auto* each : boxes) {
        if (!qobject_cast<QAbstractItemView*>(each))
            continue;
        boxes.first()->setFocus();
        const QColor before = edgeOf(*each);
        each->setFocus();
        const QColor focused = edgeOf(*each);
        EXPECT_GE(standsOut(focused), 3);
        EXPECT_GT(focused.hslSaturation(), before.hslSaturation() + 60) << "in the colour of what is chosen";
    }
}

const auto byName = [](const auto& test) { return test.param; };
INSTANTIATE_TEST_SUITE_P(Palettes, Edges, testing::Values("Light", "Dark", "Black", "Grey"), byName);
INSTANTIATE_TEST_SUITE_P(Palettes, DarkEdges, testing::Values("Dark", "Black", "Grey"), byName);

TEST(Contrast, IsThatOfLightAsTheEyeWeighsIt)
{
    EXPECT_DOUBLE_EQ(contrast(Qt::white, Qt::black), 21);
    EXPECT_DOUBLE_EQ(contrast(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(contrast(Qt::red, Qt::red), 1);
    EXPECT_NEAR(contrast(Qt::white, QColor(0x77, 0x77, 0x77)), 4.48, 0.01);
    EXPECT_NEAR(contrast(Qt::white, Qt::red), 4.00, 0.01);
}

} // namespace
} // namespace quillfen
