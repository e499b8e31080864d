#pragma once

#include <QLabel>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

class QWidget;

namespace quillfen {

/// A plain-text label with its buddy.
QLabel* labelFor(const QString& text, QWidget* buddy);

/// Code page texts as screen texts.
QStringList texts(const std::vector<std::string>& bytes);

/// A list below its toolbar or toolbars, and both below the list's label; there may be no toolbar, and
/// without a text there is no label.
QWidget* listWithToolbar(const QString& label, QWidget* toolbar, QWidget* list);

} // namespace quillfen
