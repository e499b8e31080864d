#pragma once

#include "functions/catalogue.h"
#include "shell/window/navigatortable.h"

namespace quillfen {

// What the main window's table says of the functions.

inline const NavigatorTable& navigatorTable()
{
    static const NavigatorTable table(functionNodes());
    return table;
}

inline const QList<NavigatorRow>& navigatorRows()
{
    return navigatorTable().rows();
}

inline QString parentKey(const QString& key)
{
    return navigatorTable().parentKey(key);
}

inline const QStringList& formKeys()
{
    return navigatorTable().formKeys();
}

inline QString formName(const QString& key)
{
    return navigatorTable().formName(key);
}

} // namespace quillfen
