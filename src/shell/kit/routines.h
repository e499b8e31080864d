#pragma once

#include <QHash>
#include <QString>

#include <functional>

namespace quillfen {

/// The public routines that a form serves to the borrowed right-click menus, by name ("gMenuFirstAddClick").
using RoutineTable = QHash<QString, std::function<void()>>;

/// The routine behind an item ("Add", "Delete", "Edit", "True") of a borrowed menu: "gMenu", the menu's word,
/// the item's word, the menu's number if it has one, and "Click".
QString routineName(const QString& menu, const QString& item);

} // namespace quillfen
