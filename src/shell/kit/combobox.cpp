#include "shell/kit/combobox.h"

#include <QStylePainter>
#include <QWheelEvent>

namespace quillfen {

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus); // the wheel would give it the focus first
}

void ComboBox::setFlatField(bool flat)
{
    m_flatField = flat;
    update();
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void ComboBox::paintEvent(QPaintEvent* event)
{
    if (!m_flatField) {
        QComboBox::paintEvent(event);
        return;
    }
    // Styles shade the whole box as a button; only its arrow is left so.
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    painter.fillRect(field, palette().brush(QPalette::Base));
    option.palette.setBrush(QPalette::ButtonText, palette().brush(QPalette::Text));
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace quillfen
