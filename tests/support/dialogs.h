#pragma once

#include "support/boxes.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace quillfen::test {

/// What a user does with an edit dialog: the fields that are filled, in order (a null string leaves one as it
/// is), and the button that is pressed then.
struct Entry
{
    QStringList fields;
    const char* button = "cmdOK";
};

/// What an edit dialog showed when it came up.
struct SeenDialog
{
    QString name;
    QString title;
    QStringList labels;
    QStringList values;

    bool operator==(const SeenDialog&) const = default;
};

/// The input of a field: a text, the text of a number, or a combo box.
inline QWidget* fieldOf(const QWidget& dialog, int number)
{
    const auto* label = dialog.findChild<QLabel*>(QStringLiteral("lblLabel(%1)").arg(number));
    QWidget* buddy = label ? label->buddy() : nullptr;
    if (buddy && !qobject_cast<QComboBox*>(buddy) && !qobject_cast<QLineEdit*>(buddy))
        return buddy->findChild<QLineEdit*>();
    return buddy;
}

inline void fillField(QWidget* field, const QString& text)
{
    if (auto* combo = qobject_cast<QComboBox*>(field)) {
        combo->setCurrentText(text);
        return;
    }
    auto* box = qobject_cast<QLineEdit*>(field);
    box->selectAll();
    if (text.isEmpty())
        QTest::keyClick(box, Qt::Key_Delete);
    else
        QTest::keyClicks(box, text);
}

/// Runs an action that opens edit dialogs, and uses each with the next of the entries; message boxes and
/// dialogs beyond the entries are closed. Returns what the dialogs showed.
inline QList<SeenDialog> entering(QList<Entry> entries, const std::function<void()>& action)
{
    QList<SeenDialog> seen;
    withModal(action, [&](QWidget& modal) {
        SeenDialog shown{modal.objectName(), modal.windowTitle(), {}, {}};
        for (int number = 0; QWidget* field = fieldOf(modal, number); ++number) {
            shown.labels.append(modal.findChild<QLabel*>(QStringLiteral("lblLabel(%1)").arg(number))->text());
            const auto* combo = qobject_cast<QComboBox*>(field);
            shown.values.append(combo ? combo->currentText() : qobject_cast<QLineEdit*>(field)->text());
        }
        seen.append(shown);
        if (entries.isEmpty() || shown.labels.isEmpty()) {
            modal.close();
            return;
        }
        const Entry entry = entries.takeFirst();
        for (int number = 0; number < entry.fields.size(); ++number) {
            if (!entry.fields[number].isNull())
                fillField(fieldOf(modal, number), entry.fields[number]);
        }
        modal.findChild<QPushButton*>(entry.button)->click();
    });
    return seen;
}

} // namespace quillfen::test
