#include "shell/kit/tooltip.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QTimer>
#include <QToolTip>

#include <algorithm>

namespace quillfen {
namespace {

constexpr int pointerHeight = 10;
constexpr int iconSize = 16;

/// The balloon's window: rounded, with a pointer at its top left; or a plain box.
class BalloonWindow : public QWidget
{
public:
    BalloonWindow(QWidget* parent, bool balloon) : QWidget(parent, Qt::ToolTip), m_balloon(balloon)
    {
        setObjectName("CTooltip");
        setAttribute(Qt::WA_DeleteOnClose);
        setAttribute(Qt::WA_ShowWithoutActivating);
        connect(qApp, &QApplication::focusChanged, this, &QWidget::close);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(palette().color(QPalette::ToolTipText));
        painter.setBrush(palette().color(QPalette::ToolTipBase));
        painter.drawPath(outline());
    }

    void mousePressEvent(QMouseEvent* /*event*/) override { close(); }

    /// A mask, since a translucent window is black where the desktop has no compositor.
    void resizeEvent(QResizeEvent* /*event*/) override
    {
        const QRegion inside(outline().toFillPolygon().toPolygon());
        setMask(inside.united(inside.translated(-1, -1))); // with the line on its upper and left edge
    }

private:
    QPainterPath outline() const
    {
        const QRectF box = QRectF(rect()).adjusted(0.5, (m_balloon ? pointerHeight : 0) + 0.5, -0.5, -0.5);
        QPainterPath path;
        path.addRoundedRect(box, m_balloon ? 6 : 0, m_balloon ? 6 : 0);
        if (!m_balloon)
            return path;
        QPainterPath pointer;
        pointer.moveTo(14, box.top() + 1);
        pointer.lineTo(14, 1);
        pointer.lineTo(28, box.top() + 1);
        return path.united(pointer);
    }

    bool m_balloon;
};

QLabel* plainLabel(const QString& name, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::ToolTipText);
    return label;
}

QPoint onScreen(const QPoint& point, const QSize& size, const QWidget& parent)
{
    const QRect available = parent.screen()->availableGeometry();
    return {
        std::clamp(point.x(), available.left(), std::max(available.left(), available.right() - size.width())),
        std::clamp(point.y(), available.top(),
                   std::max(available.top(), available.bottom() - size.height()))};
}

} // namespace

void CTooltip::setTitle(const QString& title)
{
    m_title = title;
    if (m_window)
        m_window->findChild<QLabel*>("lblTitle")->setText(title);
}

void CTooltip::Create(QWidget* parent, const QPoint& at)
{
    Destroy();
    const bool balloon = m_style == Style::Balloon;
    auto* window = new BalloonWindow(parent, balloon);
    QPalette colours = QToolTip::palette();
    if (m_foreColor.isValid())
        colours.setColor(QPalette::ToolTipText, m_foreColor);
    if (m_backColor.isValid())
        colours.setColor(QPalette::ToolTipBase, m_backColor);
    window->setPalette(colours);

    auto* layout = new QGridLayout(window);
    layout->setContentsMargins(10, 8 + (balloon ? pointerHeight : 0), 12, 8);
    auto* icon = plainLabel("lblIcon", QString());
    if (m_icon)
        icon->setPixmap(window->style()->standardIcon(*m_icon).pixmap(iconSize));
    auto* title = plainLabel("lblTitle", m_title);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    layout->addWidget(icon, 0, 0);
    layout->addWidget(title, 0, 1);
    layout->addWidget(plainLabel("lblText", m_text), 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);

    m_window = window;
    window->adjustSize();
    window->move(onScreen(parent->mapToGlobal(at), window->size(), *parent));
    QTimer::singleShot(m_delayTime, window, [window] { window->show(); });
    QTimer::singleShot(m_delayTime + m_visibleTime, window, [window] { window->close(); });
}

void CTooltip::Destroy()
{
    delete m_window.data();
}

} // namespace quillfen
