#include "shell/kit/formpart.h"

#include <QMenu>

namespace quillfen {

void FormContext::showMenu(const QString& name, const QPoint& at) const
{
    if (auto* menu = popUpMenu(name))
        menu->popup(at);
}

} // namespace quillfen
