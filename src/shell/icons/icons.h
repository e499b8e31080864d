#pragma once

#include <QIcon>
#include <QString>

namespace quillfen {

/// One of our own icons by its file's name, drawn to be readable on light and dark. Each is loaded once:
/// icons of their own for each form would fill Qt's cache of pictures with the same ones.
QIcon themedIcon(const QString& name);

} // namespace quillfen
