#include "shell/kit/toolbars.h"

#include "shell/icons/icons.h"
#include "shell/kit/elidedlabel.h"
#include "shell/kit/messages.h"
#include "shell/kit/units.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeView>

namespace quillfen {
namespace {

void insertAction(QToolBar& toolbar, int& index, QAction* action)
{
    const auto actions = toolbar.actions();
    toolbar.insertAction(index < actions.size() ? actions.at(index) : nullptr, action);
    ++index;
}

/// Opens a drop-down button's menu by keys; Qt's own button goes on to the next one at Down.
class DropDownKeys : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* pressed = static_cast<QKeyEvent*>(event);
        const auto modifiers = pressed->modifiers() & ~Qt::KeypadModifier;
        if (pressed->key() != Qt::Key_Down || (modifiers != Qt::NoModifier && modifiers != Qt::AltModifier))
            return false;
        static_cast<QToolButton*>(watched)->showMenu();
        return true;
    }
};

void setState(const QToolBar& toolbar, const QStatusBar& statusBar, bool dirty)
{
    toolbar.actions().at(1)->setEnabled(dirty);
    // Button 3 is a separator on a form's toolbar, where this changes nothing; other toolbars have a button
    // there.
    toolbar.actions().at(2)->setEnabled(false);
    statusBar.findChildren<QLabel*>(Qt::FindDirectChildrenOnly)
        .constFirst()
        ->setText(dirty ? QStringLiteral("Controls = Dirty") : QStringLiteral("Controls = Clean"));
}

/// Lets Tab go along a toolbar's buttons as they stand. A builder may have put its own in front of older
/// ones.
void orderTab(const QToolBar& toolbar)
{
    QWidget* oldest = nullptr; // the widgets before and behind the toolbar keep their places around this one
    for (auto* child : toolbar.findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
        if (!oldest && toolbar.actions().contains(child->defaultAction()))
            oldest = child;
    }
    QWidget* before = oldest;
    for (auto* action : toolbar.actions()) {
        auto* each = toolbar.widgetForAction(action);
        if (action->isSeparator() || each == before)
            continue;
        QWidget::setTabOrder(before, each);
        before = each;
    }
}

} // namespace

QToolBar* smallToolbar(const QString& name, const std::vector<ToolbarBuilder>& builders)
{
    auto* toolbar = new QToolBar;
    toolbar->setObjectName(name);
    toolbar->setIconSize({16, 16});
    addButtons(*toolbar, builders);
    return toolbar;
}

void addButtons(QToolBar& toolbar, const std::vector<ToolbarBuilder>& builders)
{
    int index = 0;
    for (const ToolbarBuilder build : builders)
        build(toolbar, index);
}

QAction* addButton(QToolBar& toolbar, int& index, const QString& key, const QString& toolTip,
                   const QString& icon)
{
    auto* action = new QAction(themedIcon(icon), toolTip, &toolbar);
    action->setObjectName(key);
    action->setToolTip(toolTip);
    insertAction(toolbar, index, action);
    return action;
}

QAction* addSeparator(QToolBar& toolbar, int& index)
{
    auto* separator = new QAction(&toolbar);
    separator->setSeparator(true);
    insertAction(toolbar, index, separator);
    return separator;
}

QAction* button(const QToolBar& toolbar, const QString& key)
{
    return toolbar.findChild<QAction*>(key, Qt::FindDirectChildrenOnly);
}

void removeButton(QToolBar& toolbar, const QString& key)
{
    delete button(toolbar, key);
}

void letKeysReachButtons(QWidget& window)
{
    for (auto* each : window.findChildren<QToolButton*>()) {
        if (!qobject_cast<QToolBar*>(each->parentWidget()))
            continue;
        each->setFocusPolicy(Qt::TabFocus);
        if (each->defaultAction() && each->defaultAction()->menu())
            each->installEventFilter(new DropDownKeys(each));
    }
    for (const auto* toolbar : window.findChildren<QToolBar*>())
        orderTab(*toolbar);
}

void BuildFormToolbar(QToolBar& toolbar, int& index)
{
    toolbar.setMovable(false);
    toolbar.setFloatable(false);
    toolbar.setIconSize({20, 20});
    addSeparator(toolbar, index);
    auto* save = addButton(toolbar, index, "SAVE", "Save changes", "save");
    save->setEnabled(false);
    save->setShortcut(QKeySequence::Save);
    save->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    save->setToolTip("Save changes");
    addSeparator(toolbar, index);
    addButton(toolbar, index, "DISCARD", "Discard changes", "discard");
    addButton(toolbar, index, "RESTORE", "Restore defaults", "restore");
    addSeparator(toolbar, index);
}

void AddDeleteButton(QToolBar& toolbar, int& index)
{
    addButton(toolbar, index, "DELETE", "Delete", "delete");
}

void AddEditButton(QToolBar& toolbar, int& index)
{
    addButton(toolbar, index, "EDIT", "Edit", "edit");
}

void AddEditAllButton(QToolBar& toolbar, int& index)
{
    addButton(toolbar, index, "EDITALL", "Edit All", "editall");
}

void AddAmendButton(QToolBar& toolbar, int& index)
{
    addButton(toolbar, index, "AMEND", "Amend", "amend");
}

void BuildListToolbar(QToolBar& toolbar, int& index)
{
    addButton(toolbar, index, "NEW", "Add", "new");
    AddDeleteButton(toolbar, index);
    AddEditButton(toolbar, index);
}

void BuildFileListToolbar(QToolBar& toolbar, int& index)
{
    addButton(toolbar, index, "NEW", "Create new file", "new");
    addButton(toolbar, index, "OPEN", "Add existing file", "open");
    addButton(toolbar, index, "DELETE", "Delete question file", "delete");
    addButton(toolbar, index, "EDIT", "Edit question file", "edit");
}

void BuildFileEditToolbar(QToolBar& toolbar, int& index)
{
    const auto addDisabled = [&](const QString& key, const QString& toolTip, const QString& icon) {
        addButton(toolbar, index, key, toolTip, icon)->setEnabled(false);
    };
    addDisabled("SAVE", "Save changes", "save");
    addDisabled("CLOSE", "Discard changes", "close");
    addDisabled("NEW", "Add new question", "new");
    addDisabled("EDIT", "Edit question", "edit");
    addDisabled("DELETE", "Delete question", "delete");
}

void BuildMovementToolbar(QToolBar& toolbar, int& index)
{
    const auto addMove = [&](const QString& key, const QString& toolTip, const QString& icon,
                             Qt::Key pressed) {
        auto* action = addButton(toolbar, index, key, toolTip, icon);
        action->setShortcut(QKeySequence(Qt::ALT | pressed));
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setToolTip(toolTip + " (" + action->shortcut().toString(QKeySequence::NativeText) + ')');
    };
    addMove("MoveTop", "Move to the top", "movetop", Qt::Key_Home);
    addMove("MoveUp", "Move up", "moveup", Qt::Key_Up);
    addMove("MoveDown", "Move down", "movedown", Qt::Key_Down);
    addMove("MoveBottom", "Move to the bottom", "movebottom", Qt::Key_End);
}

bool SetControlsDirty(QToolBar& toolbar, QStatusBar& statusBar)
{
    setState(toolbar, statusBar, true);
    return true;
}

bool SetControlsClean(QToolBar& toolbar, QStatusBar& statusBar)
{
    setState(toolbar, statusBar, false);
    return false;
}

void PlaceChildForm(QStatusBar& statusBar)
{
    auto* state = new QLabel(QStringLiteral("Controls = Clean"), &statusBar);
    state->setMinimumWidth(twips(1500));
    state->setTextFormat(Qt::PlainText);
    statusBar.addWidget(state);
    auto* note = new ElidedLabel(0, &statusBar);
    note->setMinimumWidth(1); // a long text is cut, and doesn't widen the form
    statusBar.addWidget(note, 1);
}

void ConfirmDiscard(QTreeView& list, QToolBar& toolbar, bool& bDiscardNow)
{
    if (!bDiscardNow) {
        bDiscardNow = confirm(list.window(), "Discard changes?",
                              "Are you sure you want to discard unsaved changes?", QMessageBox::NoIcon);
    }
    if (!bDiscardNow)
        return;
    list.model()->removeRows(0, list.model()->rowCount());
    const auto buttons = toolbar.actions();
    for (int at = 0; at < 5; ++at)
        buttons.at(at)->setEnabled(at == 0);
}

} // namespace quillfen
