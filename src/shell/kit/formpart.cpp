#include "shell/kit/formpart.h"

#include <QMenu>

namespace quillfen {

void FormContext::showMenu(const QString& name, const QPoint& at) const
{
    if (auto* menu = popUpMenu(name))
        menu->popup(at);
}

void FormPart::adopt(FormPart& part)
{
    part.setParent(this);
    connect(&part, &FormPart::changed, this, &FormPart::changed);
    connect(&part, &FormPart::note, this, &FormPart::note);
    connect(&part, &FormPart::openFileChanged, this, &FormPart::openFileChanged);
}

} // namespace quillfen
