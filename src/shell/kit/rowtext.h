#pragma once

#include <QList>
#include <QStringList>

namespace quillfen {

/// Rows as spreadsheets give and take them: a row a line, its cells parted by tabs. A cell that holds a tab
/// or a line end stands in quotation marks, with its own doubled.
QString textOfRows(const QList<QStringList>& rows);

/// The rows of such a text, without its blank lines.
QList<QStringList> rowsOfText(const QString& text);

} // namespace quillfen
