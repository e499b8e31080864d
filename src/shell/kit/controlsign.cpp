#include "shell/kit/controlsign.h"

#include "shell/kit/longtext.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace quillfen {
namespace {

constexpr int edgeWidth = 2;

/// The line of text in a control, if it has one.
QLineEdit* lineOf(QWidget* control)
{
    auto* line = qobject_cast<QLineEdit*>(control);
    return line || !control ? line : control->findChild<QLineEdit*>();
}

/// A text ends before the sign.
void leaveRoom(QWidget* control, int room)
{
    if (auto* line = lineOf(control))
        line->setTextMargins(0, 0, room, 0);
}

} // namespace

QColor signColour()
{
    return {200, 120, 0};
}

void drawSign(QPainter& painter, const QRect& place)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath triangle(QPointF(box.center().x(), box.top()));
    triangle.lineTo(box.bottomRight());
    triangle.lineTo(box.bottomLeft());
    triangle.closeSubpath();
    painter.fillPath(triangle, signColour());
    painter.setPen(QPen(Qt::white, box.height() / 9, Qt::SolidLine, Qt::RoundCap));
    const qreal middle = box.center().x();
    painter.drawLine(QPointF(middle, box.top() + box.height() * 0.40),
                     QPointF(middle, box.top() + box.height() * 0.66));
    painter.drawPoint(QPointF(middle, box.top() + box.height() * 0.84));
    painter.restore();
}

ControlSign::ControlSign(QWidget& control, const QString& words)
    : QWidget(control.parentWidget()),
      m_control(&control),
      m_before(control.accessibleDescription())
{
    setObjectName("SIGN");
    setToolTip(toolTipOf(words));
    control.setAccessibleDescription(words);
    leaveRoom(&control, signSize + 2);
    control.installEventFilter(this);
    follow();
}

ControlSign::~ControlSign()
{
    if (!m_control)
        return;
    m_control->setAccessibleDescription(m_before);
    leaveRoom(m_control, 0);
}

bool ControlSign::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show || type == QEvent::Hide)
        follow();
    return QWidget::eventFilter(watched, event);
}

/// Nothing but the edge and the sign is this widget: what lies between them is still the control's.
void ControlSign::follow()
{
    setGeometry(m_control->geometry());
    setMask(QRegion(rect()) - rect().adjusted(edgeWidth, edgeWidth, -edgeWidth, -edgeWidth) + signPlace());
    setVisible(!m_control->isHidden());
    raise();
}

QRect ControlSign::signPlace() const
{
    const auto at = [this](int end, int middle) {
        return QRect(std::min(end, width() - edgeWidth) - signSize - 1, middle - signSize / 2, signSize,
                     signSize);
    };
    const int middle = height() / 2;
    if (const auto* line = lineOf(m_control)) {
        const QPoint end = line->mapTo(m_control, line->rect().topRight());
        return at(end.x() - 1, middle);
    }
    if (qobject_cast<QComboBox*>(m_control))
        return at(width() - 22, middle); // before its arrow
    if (qobject_cast<QAbstractItemView*>(m_control))
        return at(width() - 3, signSize / 2 + 4);
    return at(m_control->sizeHint().width() + signSize + 6,
              std::min(middle, m_control->sizeHint().height() / 2));
}

void ControlSign::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(QPen(signColour(), edgeWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
    drawSign(painter, signPlace());
}

} // namespace quillfen
