#include "shell/icons/icons.h"

#include <QCoreApplication>
#include <QHash>

/// The linker drops a static library's resources unless they are named; this macro must stand outside a
/// namespace.
static void loadIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace quillfen {
namespace {

QHash<QString, QIcon>& icons()
{
    static QHash<QString, QIcon> all;
    return all;
}

/// Icons must not outlive the application.
void forgetIcons()
{
    icons().clear();
}

} // namespace

QIcon themedIcon(const QString& name)
{
    static const bool ready = (loadIcons(), qAddPostRoutine(forgetIcons), true);
    QIcon& icon = icons()[name];
    if (ready && icon.isNull())
        icon = QIcon(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
    return icon;
}

} // namespace quillfen
