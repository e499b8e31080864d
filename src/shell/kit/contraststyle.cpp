#include "shell/kit/contraststyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace quillfen {
namespace {

/// What a thing's edge needs to be seen: 3, and some for what the screen rounds away.
constexpr double enough = 3.1;

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

/// The share that a colour's red, green or blue has in its light.
double light(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * light(colour.redF()) + 0.7152 * light(colour.greenF()) + 0.0722 * light(colour.blueF());
}

QColor mixed(const QColor& one, const QColor& other, float share)
{
    const auto mix = [share](float of, float with) { return of + (with - of) * share; };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

/// The edge of a box or list: a colour brought as near to the text's as it takes to stand out from the window
/// around it and from the ground inside.
QColor edge(const QPalette& palette, QStyle::State state)
{
    const QColor from =
        palette.color((state & QStyle::State_HasFocus) != 0 ? QPalette::Highlight : QPalette::Window);
    const QColor text = palette.color(QPalette::Text);
    const auto standsOut = [&palette](const QColor& colour) {
        return contrast(colour, palette.color(QPalette::Window)) >= enough &&
               contrast(colour, palette.color(QPalette::Base)) >= enough;
    };
    QColor colour = from;
    for (int percent = 5; percent <= 100 && !standsOut(colour); percent += 5)
        colour = mixed(from, text, static_cast<float>(percent) / 100);
    return colour;
}

/// Draws an edge as Fusion draws its own, over it.
void drawEdge(const QStyleOption& option, QPainter& painter, qreal radius)
{
    painter.save();
    painter.setPen(edge(option.palette, option.state));
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

void drawIndicatorEdge(QStyleOption option, QPainter& painter, bool round)
{
    option.state &= ~QStyle::State_HasFocus; // which is told by a frame around the words
    const int size = std::min(option.rect.width(), option.rect.height());
    if (round)
        option.rect.setSize({size, size});
    drawEdge(option, painter, round ? size / 2.0 : 0);
}

bool hasFrame(const QStyleOptionComplex& option)
{
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option))
        return combo->frame;
    const auto* number = qstyleoption_cast<const QStyleOptionSpinBox*>(&option);
    return number && number->frame;
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

void ContrastStyle::install()
{
    if (QApplication::style()->name() == QStringLiteral("fusion"))
        QApplication::setStyle(new ContrastStyle);
}

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_Frame && (isDark(option->palette) || (option->state & State_HasFocus) != 0))
        drawEdge(*option, *painter, 0);
    else if (element == PE_FrameLineEdit && isDark(option->palette))
        drawEdge(*option, *painter, 2);
    else if ((element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) &&
             isDark(option->palette))
        drawIndicatorEdge(*option, *painter, element == PE_IndicatorRadioButton);
}

void ContrastStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (hasFrame(*option) && isDark(option->palette))
        drawEdge(*option, *painter, 2);
}

} // namespace quillfen
