#include "shell/window/changedicon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace quillfen {
namespace {

/// A ring around the dot keeps it apart from what is below it.
void drawDot(QPainter& painter, const QRectF& place)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, place.width() / 8));
    painter.setBrush(QGuiApplication::palette().color(QPalette::Link));
    painter.drawEllipse(place);
}

/// Pictures of all sizes that windows and menus ask for.
template <typename Draw>
QIcon drawn(const Draw& draw)
{
    QIcon icon;
    for (const int size : {16, 32, 48}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        draw(painter, size);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace

QIcon changedDot()
{
    return drawn([](QPainter& painter, int size) {
        const qreal dot = size / 2.0;
        drawDot(painter, {(size - dot) / 2, (size - dot) / 2, dot, dot});
    });
}

QIcon withChangedDot(const QIcon& icon)
{
    return drawn([&icon](QPainter& painter, int size) {
        painter.drawPixmap(0, 0, icon.pixmap(QSize(size, size), 1.0));
        const qreal dot = size / 2.0;
        drawDot(painter, {size - dot - 0.5, size - dot - 0.5, dot, dot});
    });
}

} // namespace quillfen
