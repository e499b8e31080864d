#include "news/statuspanel.h"

#include "shell/kit/longtext.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace quillfen {
namespace {

constexpr int inset = 6;
constexpr int rounding = 2; ///< a text's width is a fraction, and cutting it takes that exactly
constexpr int widest = 360; ///< what a panel asks for at most; a text from the server may be of any length

} // namespace

StatusPanel::StatusPanel(const QString& key, const QString& text, QWidget* parent)
    : ElidedLabel(inset, parent)
{
    setObjectName(key);
    setText(text);
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
        ElidedLabel::keyPressEvent(event);
}

} // namespace quillfen
