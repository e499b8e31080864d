#include "shell/kit/routines.h"

#include "shell/kit/toolbars.h"

namespace quillfen {

QString routineName(const QString& menu, const QString& item)
{
    const QString onlyEdit = QStringLiteral("mnuOnlyEdit");
    const QString word = menu.mid(3);
    if (menu.startsWith(onlyEdit)) // "mnuOnlyEditTwo": the number stands behind the item
        return QStringLiteral("gMenu") + item + menu.mid(onlyEdit.size()) + QStringLiteral("Click");
    if (menu == "mnuUserActions") // its routines bear no word
        return QStringLiteral("gMenu") + item + QStringLiteral("Click");
    return QStringLiteral("gMenu") + word + item + QStringLiteral("Click");
}

RoutineTable buttonRoutines(const QString& menu, const QToolBar& toolbar)
{
    RoutineTable routines;
    for (const auto& [item, key] :
         {std::pair<QString, QString>{"Add", "NEW"}, {"Delete", "DELETE"}, {"Edit", "EDIT"}}) {
        if (auto* pressed = button(toolbar, key))
            routines.insert(routineName(menu, item), {[pressed] { pressed->trigger(); }, pressed});
    }
    return routines;
}

} // namespace quillfen
