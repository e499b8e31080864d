#pragma once

#include <QLabel>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

class QToolBar;
class QWidget;

namespace quillfen {

/// A plain-text label with its buddy.
QLabel* labelFor(const QString& text, QWidget* buddy);

/// Code page texts as screen texts.
QStringList texts(const std::vector<std::string>& bytes);

/// A list below its label.
QWidget* labelledList(const QString& label, QWidget* list);

/// A list below its toolbar, and both below the list's label; without a text there is no label.
QWidget* listWithToolbar(const QString& label, QToolBar* toolbar, QWidget* list);

} // namespace quillfen
