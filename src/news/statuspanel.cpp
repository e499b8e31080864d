#include "news/statuspanel.h"

#include "shell/kit/longtext.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace quillfen {
namespace {

constexpr int inset = 6;
constexpr int rounding = 2; ///< a text's width is a fraction, and cutting it takes that exactly
constexpr int widest = 360; ///< what a panel asks for at most; a text from the server may be of any length

} // namespace

StatusPanel::StatusPanel(const QString& key, const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setObjectName(key);
    setTextFormat(Qt::PlainText);
}

void StatusPanel::setLine(const QString& text)
{
    QString line = shownPart(text);
    line.replace("\r\n", " ").replace('\n', ' ').replace('\r', ' ');
    setText(line);
}

QSize StatusPanel::sizeHint() const
{
    return {std::min(fontMetrics().horizontalAdvance(text()) + 2 * inset + rounding, widest),
            fontMetrics().height() + 4};
}

QSize StatusPanel::minimumSizeHint() const
{
    return {0, fontMetrics().height() + 4}; // asked for often, and a width would cost its text's measure
}

void StatusPanel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRect room = rect().adjusted(inset, 0, -inset, 0);
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                          isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
                          foregroundRole());
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void StatusPanel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void StatusPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space)
        emit clicked();
    else
        QLabel::keyPressEvent(event);
}

} // namespace quillfen
