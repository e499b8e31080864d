#pragma once

#include <QAction>
#include <QString>
#include <QToolBar>

#include <vector>

class QStatusBar;
class QTreeView;
class QWidget;

namespace quillfen {

/// The builders put their buttons in at a running index, which they move on behind what they added. A button
/// is a QAction whose object name is its key.
using ToolbarBuilder = void (*)(QToolBar& toolbar, int& index);

void BuildFormToolbar(QToolBar& toolbar, int& index);
void AddDeleteButton(QToolBar& toolbar, int& index);
void AddEditButton(QToolBar& toolbar, int& index);
void AddEditAllButton(QToolBar& toolbar, int& index);
void AddAmendButton(QToolBar& toolbar, int& index);
void BuildListToolbar(QToolBar& toolbar, int& index);
void BuildFileListToolbar(QToolBar& toolbar, int& index);
void BuildFileEditToolbar(QToolBar& toolbar, int& index);

/// The buttons that move a list's selected row: "MoveTop", "MoveUp", "MoveDown", "MoveBottom". Their keys
/// (Alt and Home, Up, Down, End) work in the widgets that they are added to.
void BuildMovementToolbar(QToolBar& toolbar, int& index);

/// A toolbar of that name with what the builders put in, one behind the other, as lists and single controls
/// have it. The caller owns it.
QToolBar* smallToolbar(const QString& name, const std::vector<ToolbarBuilder>& builders);

/// Puts in what the builders put in, one behind the other.
void addButtons(QToolBar& toolbar, const std::vector<ToolbarBuilder>& builders);

/// One button by its key; the icon is the one of that name.
QAction* addButton(QToolBar& toolbar, int& index, const QString& key, const QString& toolTip,
                   const QString& icon);
QAction* addSeparator(QToolBar& toolbar, int& index);

/// The toolbar's button of that key, or null.
QAction* button(const QToolBar& toolbar, const QString& key);

/// Takes a button that a builder added off again.
void removeButton(QToolBar& toolbar, const QString& key);

/// Lets the Tab key reach the buttons of a window's toolbars, and opens a drop-down by the keys that open a
/// combo box: Down and Alt+Down.
void letKeysReachButtons(QWidget& window);

/// Calls a member of `receiver` at a click on the toolbar's button of that key, if it has one.
template <typename Receiver, typename Member>
void connectButton(const QToolBar& toolbar, const QString& key, Receiver* receiver, Member member)
{
    if (auto* action = button(toolbar, key))
        QObject::connect(action, &QAction::triggered, receiver, member);
}

/// Button 2 lights ("SAVE" on a form's toolbar) and panel 1 reads "Controls = Dirty". Returns the form's new
/// bDirty.
bool SetControlsDirty(QToolBar& toolbar, QStatusBar& statusBar);

/// Button 2 goes out and panel 1 reads "Controls = Clean". Returns the form's new bDirty.
bool SetControlsClean(QToolBar& toolbar, QStatusBar& statusBar);

/// Lays out a form's status bar with its two panels.
void PlaceChildForm(QStatusBar& statusBar);

/// Leaves one open list file: asks unless bDiscardNow is set, and sets it on OK. Then the list is
/// emptied, button 1 lights and buttons 2 to 5 go out.
void ConfirmDiscard(QTreeView& list, QToolBar& toolbar, bool& bDiscardNow);

} // namespace quillfen
