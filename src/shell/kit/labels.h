#pragma once

#include <QLabel>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

class QWidget;

namespace quillfen {

/// A plain-text label with its buddy. An ampersand in the text is shown as one and makes no key.
QLabel* labelFor(const QString& text, QWidget* buddy);

/// Cuts a label whose text is wider than so many characters, and tells the whole text in its tool tip.
void elide(QLabel& label, const QString& text, int characters);

/// A text as labels, menus and boxes show it to the letter: its ampersands are doubled.
QString withoutKeys(QString text);

/// Code page texts as screen texts.
QStringList texts(const std::vector<std::string>& bytes);

/// A list below its label.
QWidget* labelled(const QString& label, QWidget* list);

} // namespace quillfen
