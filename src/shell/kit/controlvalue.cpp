#include "shell/kit/controlvalue.h"

#include "shell/kit/numberbox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace quillfen {
namespace {

const QString on = QStringLiteral("on");

/// The group's options, none for any other control.
QList<QRadioButton*> optionsOf(const QWidget& control)
{
    return qobject_cast<const QGroupBox*>(&control) ? control.findChildren<QRadioButton*>()
                                                    : QList<QRadioButton*>();
}

} // namespace

std::optional<QString> valueOf(const QWidget& control)
{
    if (const auto* check = qobject_cast<const QCheckBox*>(&control))
        return check->isChecked() ? on : QStringLiteral("off");
    if (const auto* line = qobject_cast<const QLineEdit*>(&control))
        return line->text();
    if (const auto* number = qobject_cast<const NumberBox*>(&control))
        return number->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(&control))
        return combo->currentText();
    const auto options = optionsOf(control);
    if (options.isEmpty())
        return std::nullopt;
    for (const auto* option : options) {
        if (option->isChecked())
            return option->text();
    }
    return QString();
}

void setValue(QWidget& control, const QString& value)
{
    if (auto* check = qobject_cast<QCheckBox*>(&control))
        check->setChecked(value == on);
    else if (auto* line = qobject_cast<QLineEdit*>(&control))
        line->setText(value);
    else if (auto* number = qobject_cast<NumberBox*>(&control))
        number->setText(value);
    else if (auto* combo = qobject_cast<QComboBox*>(&control); combo && combo->isEditable())
        combo->setEditText(value);
    else if (combo)
        combo->setCurrentIndex(combo->findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive));
    for (auto* option : optionsOf(control)) {
        if (option->text() == value)
            option->setChecked(true);
    }
}

QWidget* boxAround(QWidget* line)
{
    auto* parent = line->parentWidget();
    const bool isInner = qobject_cast<QAbstractSpinBox*>(parent) || qobject_cast<QComboBox*>(parent);
    return isInner ? parent : line;
}

QWidget* controlNamed(QWidget& parent, const QString& name)
{
    auto* widget = parent.findChild<QWidget*>(name);
    if (!widget)
        return nullptr;
    return qobject_cast<QRadioButton*>(widget) ? widget->parentWidget() : boxAround(widget);
}

} // namespace quillfen
