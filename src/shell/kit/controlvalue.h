#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace quillfen {

/// What a control of one value shows: "on" or "off" of a check box, the text of a box, the entry or option
/// that is chosen. Nothing of a control that isn't such a one.
std::optional<QString> valueOf(const QWidget& control);

/// Shows such a value, as if the user had entered or chosen it.
void setValue(QWidget& control, const QString& value);

/// The control of that name among a widget's children: the box around the line of text that bears it, or the
/// group around the option button. Null if there is none.
QWidget* controlNamed(QWidget& parent, const QString& name);

/// The box that a line of text is the inside of, or the widget itself.
QWidget* boxAround(QWidget* line);

} // namespace quillfen
