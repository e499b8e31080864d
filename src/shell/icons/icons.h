#pragma once

#include <QIcon>
#include <QString>

namespace quillfen {

/// One of our own icons by its file's name, drawn to be readable on light and dark.
QIcon themedIcon(const QString& name);

} // namespace quillfen
