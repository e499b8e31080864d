#include "shell/window/navigator.h"

#include "shell/kit/listview.h"
#include "shell/kit/toolbars.h"
#include "shell/window/navigatortable.h"

#include <QHash>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace quillfen {
namespace {

QString keyOf(const QTreeWidgetItem& item)
{
    return item.data(0, Qt::UserRole).toString();
}

QTreeWidgetItem* node(const QString& key, const QString& caption, bool bold)
{
    auto* item = new QTreeWidgetItem({caption});
    item->setData(0, Qt::UserRole, key);
    QFont font = item->font(0);
    font.setBold(bold);
    item->setFont(0, font);
    return item;
}

/// The groups that "EXPAND" opens; deeper nodes and the archive stay as they are.
bool isExpandedGroup(const QString& key)
{
    static const QStringList groups = {"General", "Communication", "CustomiseUser",
                                       "Games",   "Security",      "UserActions"};
    return groups.contains(key);
}

} // namespace

Navigator::Navigator(bool portalShown, QWidget* parent)
    : QWidget(parent),
      m_toolbar(new QToolBar),
      m_tree(new QTreeWidget)
{
    setObjectName("picSideBar");
    buildToolbar();
    buildTree(portalShown);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_toolbar);
    layout->addWidget(m_tree, 1);
    connect(m_tree, &QTreeWidget::itemClicked, this, &Navigator::chosen);
    connect(m_tree, &QTreeWidget::itemActivated, this, &Navigator::chosen);
}

void Navigator::buildToolbar()
{
    m_toolbar->setObjectName("tlbSidebar");
    m_toolbar->setIconSize({16, 16});
    int index = 0;
    connect(addButton(*m_toolbar, index, "EXPAND", "Expand Nodes", "expand"), &QAction::triggered, this,
            &Navigator::expandGroups);
    connect(addButton(*m_toolbar, index, "CLOSE", "Close Nodes", "collapse"), &QAction::triggered, this,
            &Navigator::collapseAll);
}

void Navigator::buildTree(bool portalShown)
{
    m_tree->setObjectName("tvwFunctions");
    m_tree->setAccessibleName("Functions");
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setItemDelegate(new RowDelegate(m_tree));
    auto* root = node("Quillfen", "Quillfen", true);
    QHash<QString, QTreeWidgetItem*> nodes = {{QString(), root}};
    for (const NavigatorRow& row : navigatorRows()) {
        if (row.key == portalKey && !portalShown)
            continue;
        auto* item = node(row.key, row.caption, isHeading(row.key));
        nodes.value(parentKey(row.key))->addChild(item);
        nodes.insert(row.key, item);
    }
    m_tree->addTopLevelItem(root);
    root->setExpanded(true);
}

QString Navigator::selectedKey() const
{
    const auto* item = m_tree->currentItem();
    return item && item->isSelected() ? keyOf(*item) : QString();
}

bool Navigator::headingSelected() const
{
    const auto* item = m_tree->currentItem();
    return item && item->font(0).bold();
}

void Navigator::expandGroups()
{
    for (QTreeWidgetItemIterator item(m_tree); *item; ++item) {
        if (isExpandedGroup(keyOf(**item)))
            (*item)->setExpanded(true);
    }
}

void Navigator::collapseAll()
{
    m_tree->collapseAll();
}

} // namespace quillfen
