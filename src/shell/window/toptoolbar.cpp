#include "shell/window/toptoolbar.h"

#include "shell/kit/labels.h"
#include "shell/kit/toolbars.h"
#include "shell/window/navigatortable.h"

#include <QMenu>
#include <QToolButton>

namespace quillfen {
namespace {

QMenu* dropDown(const NavigatorTable& table, const QString& group, bool portalShown, QWidget* parent)
{
    auto* menu = new QMenu(parent);
    for (const NavigatorRow& row : table.rows()) {
        if (row.key.section('~', 0, 0) != group || table.isHeading(row.key) ||
            (row.key == portalKey && !portalShown))
            continue;
        menu->addAction(withoutKeys(row.dropDown))->setObjectName(row.key);
    }
    return menu;
}

} // namespace

TopToolbar::TopToolbar(const NavigatorTable& table, bool portalShown, QWidget* parent) : QToolBar(parent)
{
    setObjectName("tlbMDITop");
    setWindowTitle("Functions");
    setMovable(false);
    setIconSize({24, 24});

    int index = 0;
    connect(addButton(*this, index, "TREEVIEW", "Show/Hide Functions treeview", "treeview"),
            &QAction::triggered, this, &TopToolbar::sideBarToggled);
    quillfen::addSeparator(*this, index);
    int behindGroups = index;
    quillfen::addSeparator(*this, behindGroups);
    connect(addButton(*this, behindGroups, "DONATE", "Make a donation and support Morvaleth's Quillfen",
                      "donate"),
            &QAction::triggered, this, &TopToolbar::donateChosen);
    quillfen::addSeparator(*this, behindGroups);
    connect(addButton(*this, behindGroups, "SCRIPTS", "Visit Morvaleth's Scripts Website", "scripts"),
            &QAction::triggered, this, &TopToolbar::scriptsChosen);

    for (const NavigatorRow& row : table.rows()) {
        if (table.parentKey(row.key).isEmpty())
            insertGroup(table, row, index, portalShown);
    }
}

void TopToolbar::insertGroup(const NavigatorTable& table, const NavigatorRow& row, int& index,
                             bool portalShown)
{
    const QString group = row.key;
    auto* action = addButton(*this, index, group, row.caption, group.toLower());
    auto* menu = dropDown(table, group, portalShown, this);
    action->setMenu(menu);
    qobject_cast<QToolButton*>(widgetForAction(action))->setPopupMode(QToolButton::MenuButtonPopup);
    connect(menu, &QMenu::triggered, this, [this](QAction* entry) { emit formChosen(entry->objectName()); });
    if (isFunctionGroup(group)) // on those of the archive's members only the arrow works
        connect(action, &QAction::triggered, this, [this, group] { walk(group); });
}

void TopToolbar::walk(const QString& group)
{
    const auto entries = button(*this, group)->menu()->actions();
    int& place = m_walked[group];
    place = place >= entries.size() ? 1 : place + 1;
    emit formChosen(entries.at(place - 1)->objectName());
}

} // namespace quillfen
