#include "shell/kit/contraststyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace quillfen {
namespace {

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

QPen frameOf(const QPalette& palette)
{
    QColor colour = palette.color(QPalette::Text);
    colour.setAlpha(130);
    return colour;
}

} // namespace

void ContrastStyle::install()
{
    if (QApplication::style()->name() == QStringLiteral("fusion"))
        QApplication::setStyle(new ContrastStyle);
}

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if ((element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) || !isDark(option->palette))
        return;
    painter->save();
    painter->setPen(frameOf(option->palette));
    painter->setBrush(Qt::NoBrush);
    if (element == PE_IndicatorCheckBox) {
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    } else {
        const int diameter = std::min(option->rect.width(), option->rect.height()) - 1;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawEllipse(QRectF(option->rect.topLeft(), QSizeF(diameter, diameter)).translated(0.5, 0.5));
    }
    painter->restore();
}

} // namespace quillfen
