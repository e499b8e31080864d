#include "shell/icons/icons.h"

/// The linker drops a static library's resources unless they are named; this macro must stand outside a
/// namespace.
static void loadIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace quillfen {

QIcon themedIcon(const QString& name)
{
    static const bool ready = (loadIcons(), true);
    return ready ? QIcon(QStringLiteral(":/icons/") + name + QStringLiteral(".svg")) : QIcon();
}

} // namespace quillfen
