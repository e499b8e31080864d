#include "shell/kit/numberbox.h"

#include "settings/lines.h"
#include "shell/kit/codepagetext.h"

#include <QKeyEvent>
#include <QStyleOption>
#include <QWheelEvent>

#include <algorithm>

namespace quillfen {

NumberBox::NumberBox(const QString& control, int minimum, int maximum, QWidget* parent)
    : QAbstractSpinBox(parent),
      m_minimum(minimum),
      m_maximum(maximum)
{
    setObjectName(QStringLiteral("upd") + control.mid(3));
    lineEdit()->setObjectName(control);
    limitToOneLine(*lineEdit());
    setFocusPolicy(Qt::StrongFocus);
    connect(lineEdit(), &QLineEdit::textChanged, this, &NumberBox::textChanged);
}

void NumberBox::setOnlyArrows()
{
    lineEdit()->setReadOnly(true);
    QPalette readOnly = palette();
    readOnly.setBrush(QPalette::Base, readOnly.brush(QPalette::Window));
    setPalette(readOnly);
    setToolTip("Changed by the arrows, the Page keys and the wheel");
    setAccessibleDescription(toolTip());
}

void NumberBox::setText(const QString& text)
{
    lineEdit()->setText(text);
}

/// The whole part of the number that the text begins with: what is loaded or typed may be a fraction.
long long NumberBox::value() const
{
    return static_cast<long long>(std::clamp(leadingNumber(toBytes(text())), -1e18, 1e18));
}

void NumberBox::stepBy(int steps)
{
    const auto stepped = value() + static_cast<long long>(steps) * m_step;
    setText(QString::number(std::clamp(stepped, m_minimum, m_maximum)));
}

QSize NumberBox::sizeHint() const
{
    const QSize base = QAbstractSpinBox::sizeHint();
    return {std::max(base.width(),
                     fontMetrics().horizontalAdvance(QStringLiteral("00000000")) + base.height() * 2),
            base.height()};
}

/// The style keeps a picture of a box for each palette, by which palette it is and not by its colours. Boxes
/// for arrows only have one each, and so are shown as if they had the same.
void NumberBox::initStyleOption(QStyleOptionSpinBox* option) const
{
    QAbstractSpinBox::initStyleOption(option);
    if (!lineEdit()->isReadOnly())
        return;
    static QPalette shown;
    if (option->palette != shown)
        shown = option->palette;
    const auto group = option->palette.currentColorGroup();
    option->palette = shown;
    option->palette.setCurrentColorGroup(group);
}

QAbstractSpinBox::StepEnabled NumberBox::stepEnabled() const
{
    const long long value = this->value();
    StepEnabled enabled = StepNone;
    // Either arrow brings a number from outside back into the range.
    enabled.setFlag(StepUpEnabled, value != m_maximum);
    enabled.setFlag(StepDownEnabled, value != m_minimum);
    return enabled;
}

bool NumberBox::event(QEvent* event)
{
    // The base class hands what an input method composed to its text box, read-only or not.
    if (event->type() == QEvent::InputMethod && lineEdit()->isReadOnly())
        return false;
    return QAbstractSpinBox::event(event);
}

void NumberBox::keyPressEvent(QKeyEvent* event)
{
    // On X11 the base class empties the box at Ctrl+U, read-only or not.
    if (lineEdit()->isReadOnly() && event->key() == Qt::Key_U)
        event->ignore();
    else
        QAbstractSpinBox::keyPressEvent(event);
}

void NumberBox::wheelEvent(QWheelEvent* event)
{
    // A wheel over a box that isn't in use scrolls the page, not the number.
    if (hasFocus())
        QAbstractSpinBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace quillfen
