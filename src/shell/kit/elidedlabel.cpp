#include "shell/kit/elidedlabel.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

namespace quillfen {

ElidedLabel::ElidedLabel(int inset, QWidget* parent) : QLabel(parent), m_inset(inset)
{
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRect room = rect().adjusted(m_inset, 0, -m_inset, 0);
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                          isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
                          foregroundRole());
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

} // namespace quillfen
