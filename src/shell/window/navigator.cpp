#include "shell/window/navigator.h"

#include "shell/kit/listview.h"
#include "shell/kit/toolbars.h"
#include "shell/window/changedicon.h"
#include "shell/window/navigatortable.h"

#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

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

/// Leaves the nodes whose words, with those of the headings above, hold all that are sought, and the headings
/// of such nodes. Returns whether the node is left.
bool narrowed(QTreeWidgetItem& item, const QString& above, const QStringList& sought)
{
    const QString words = above + ' ' + item.text(0);
    bool left = std::all_of(sought.begin(), sought.end(), [&words](const QString& word) {
        return words.contains(word, Qt::CaseInsensitive);
    });
    for (int child = 0; child < item.childCount(); ++child)
        left = narrowed(*item.child(child), words, sought) || left;
    item.setHidden(!left);
    item.setExpanded(left);
    return left;
}

} // namespace

Navigator::Navigator(const NavigatorTable& table, bool portalShown, QWidget* parent)
    : QWidget(parent),
      m_table(table),
      m_toolbar(new QToolBar),
      m_find(new QLineEdit),
      m_tree(new QTreeWidget)
{
    setObjectName("picSideBar");
    buildToolbar();
    buildFindBox();
    buildTree(portalShown);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_toolbar);
    layout->addWidget(m_find);
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

void Navigator::buildFindBox()
{
    m_find->setObjectName("txtFind");
    m_find->setAccessibleName("Find a function");
    m_find->setPlaceholderText("Find a function (" +
                               QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText) + ')');
    m_find->setClearButtonEnabled(true);
    m_find->installEventFilter(this);
    connect(m_find, &QLineEdit::textChanged, this, &Navigator::narrow);
    connect(m_find, &QLineEdit::returnPressed, this, &Navigator::chooseMatch);
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
    for (const NavigatorRow& row : m_table.rows()) {
        if (row.key == portalKey && !portalShown)
            continue;
        auto* item = node(row.key, row.caption, m_table.isHeading(row.key));
        nodes.value(m_table.parentKey(row.key))->addChild(item);
        nodes.insert(row.key, item);
    }
    m_tree->addTopLevelItem(root);
    root->setExpanded(true);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_tree, &QTreeWidget::customContextMenuRequested, this, &Navigator::askMenu);
}

/// By a right click on the row, or by the menu key while it is current.
void Navigator::askMenu(const QPoint& at)
{
    auto* root = m_tree->topLevelItem(0);
    if (m_tree->itemAt(at) == root)
        emit rootMenuAsked(m_tree->viewport()->mapToGlobal(at));
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

QTreeWidgetItem* Navigator::nodeOf(const QString& key) const
{
    for (QTreeWidgetItemIterator item(m_tree); *item; ++item) {
        if (keyOf(**item) == key)
            return *item;
    }
    return nullptr;
}

void Navigator::follow(const QString& key)
{
    auto* item = nodeOf(key);
    m_missed = nullptr;
    if (item && item->isHidden())
        m_missed = item;
    else if (item)
        m_tree->setCurrentItem(item); // opens the closed groups above it, and no other
}

void Navigator::markChanged(const QString& key, bool isChanged)
{
    if (auto* item = nodeOf(key))
        item->setIcon(0, isChanged ? changedDot() : QIcon());
}

void Navigator::find()
{
    m_find->setFocus(Qt::ShortcutFocusReason);
    m_find->selectAll();
}

bool Navigator::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_find && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape)
            m_find->clear();
        else if (key == Qt::Key_Down)
            m_tree->setFocus(Qt::OtherFocusReason);
        if (key == Qt::Key_Escape || key == Qt::Key_Down)
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

void Navigator::narrow(const QString& text)
{
    const QStringList sought = text.split(' ', Qt::SkipEmptyParts);
    if (sought.isEmpty()) {
        showWholeTree();
        return;
    }
    if (!m_expanded) {
        m_expanded.emplace();
        for (QTreeWidgetItemIterator item(m_tree); *item; ++item) {
            if ((*item)->isExpanded())
                m_expanded->insert(*item);
        }
    }
    auto* root = m_tree->topLevelItem(0);
    root->setExpanded(true);
    for (int group = 0; group < root->childCount(); ++group)
        narrowed(*root->child(group), QString(), sought);
    selectFirstMatch();
}

void Navigator::showWholeTree()
{
    if (!m_expanded)
        return;
    for (QTreeWidgetItemIterator item(m_tree); *item; ++item) {
        (*item)->setHidden(false);
        (*item)->setExpanded(m_expanded->contains(*item));
    }
    m_expanded.reset();
    if (m_missed)
        m_tree->setCurrentItem(std::exchange(m_missed, nullptr));
    if (auto* current = m_tree->currentItem())
        m_tree->scrollToItem(current);
}

void Navigator::selectFirstMatch()
{
    m_missed = nullptr;
    for (QTreeWidgetItemIterator item(m_tree, QTreeWidgetItemIterator::NotHidden); *item; ++item) {
        if (!m_table.formName(keyOf(**item)).isEmpty()) {
            m_tree->setCurrentItem(*item);
            return;
        }
    }
    m_tree->setCurrentItem(nullptr);
}

void Navigator::chooseMatch()
{
    if (!selectedKey().isEmpty())
        emit chosen();
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
