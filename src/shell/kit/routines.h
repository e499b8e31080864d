#pragma once

#include <QHash>
#include <QString>

#include <functional>

class QAction;
class QToolBar;

namespace quillfen {

/// A public routine that a form serves to the borrowed right-click menus.
struct Routine
{
    std::function<void()> serve;
    const QAction* button = nullptr; ///< the one that does the same: the menu's item is lit as it is
};

/// A form's routines by name ("gMenuFirstAddClick").
using RoutineTable = QHash<QString, Routine>;

/// The routine behind an item ("Add", "Delete", "Edit", "True") of a borrowed menu: "gMenu", the menu's word,
/// the item's word, the menu's number if it has one, and "Click".
QString routineName(const QString& menu, const QString& item);

/// The routines of a menu whose items press the buttons of a list's toolbar, where it has them: "Add" presses
/// NEW, "Delete" DELETE and "Edit" EDIT.
RoutineTable buttonRoutines(const QString& menu, const QToolBar& toolbar);

} // namespace quillfen
