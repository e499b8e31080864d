#pragma once

#include <QString>

namespace quillfen {

/// A text as a window's title: Qt takes "[*]" for the mark of what is unsaved, and shows it only when it is
/// doubled. Every title that holds a text of users or of the network passes here.
inline QString windowTitleOf(const QString& text)
{
    return QString(text).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

} // namespace quillfen
