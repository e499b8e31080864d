#include "shell/window/navigator.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/listview.h"
#include "shell/kit/toolbars.h"
#include "shell/window/changedicon.h"
#include "shell/window/finder.h"
#include "shell/window/findresults.h"
#include "shell/window/navigatortable.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QStackedWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>

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

/// So many functions that were opened last are offered.
constexpr qsizetype mostOpened = 12;

} // namespace

Navigator::Navigator(const NavigatorTable& table, Finder& finder, bool portalShown, QWidget* parent)
    : QWidget(parent),
      m_table(table),
      m_finder(finder),
      m_toolbar(new QToolBar),
      m_find(new QLineEdit),
      m_pages(new QStackedWidget),
      m_tree(new QTreeWidget),
      m_results(new FindResults)
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
    layout->addWidget(m_pages, 1);
    m_pages->addWidget(m_tree);
    m_pages->addWidget(m_results);
    connect(m_tree, &QTreeWidget::itemClicked, this, &Navigator::chosen);
    connect(m_tree, &QTreeWidget::itemActivated, this, &Navigator::chosen);
    connect(m_results, &FindResults::chosen, this, &Navigator::found);
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
    m_find->setAccessibleName("Find");
    m_find->setPlaceholderText("Find any setting (" +
                               QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText) + ')');
    m_find->setClearButtonEnabled(true);
    limitToOneLine(*m_find);
    m_find->installEventFilter(this);
    m_results->list().installEventFilter(this);
    connect(m_find, &QLineEdit::textChanged, this, &Navigator::search);
    connect(m_find, &QLineEdit::returnPressed, this, &Navigator::choose);
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
    if (auto* item = nodeOf(key))
        m_tree->setCurrentItem(item); // opens the closed groups above it, and no other
}

void Navigator::markChanged(const QString& key, bool isChanged)
{
    if (auto* item = nodeOf(key))
        item->setIcon(0, isChanged ? changedDot() : QIcon());
}

void Navigator::noteOpened(const QString& key)
{
    m_opened.removeAll(key);
    m_opened.prepend(key);
    m_opened = m_opened.first(std::min(m_opened.size(), mostOpened));
}

void Navigator::find()
{
    m_find->setFocus(Qt::ShortcutFocusReason);
    m_find->selectAll();
}

bool Navigator::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (takesKey(*watched, *static_cast<QKeyEvent*>(event)))
            return true;
        break;
    case QEvent::FocusIn:
        if (watched == m_find)
            search();
        break;
    case QEvent::FocusOut:
        leaveFindBox();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool Navigator::showsResults() const
{
    return m_pages->currentWidget() == m_results;
}

/// Escape brings the tree back. The arrow down leads from the box to what stands below it, and the arrow up
/// from the first result back.
bool Navigator::takesKey(const QObject& watched, QKeyEvent& event)
{
    QListView& list = m_results->list();
    const bool isInBox = &watched == m_find;
    if (event.key() == Qt::Key_Escape) {
        m_find->setFocus(Qt::OtherFocusReason);
        m_find->clear();
        showTree();
        return true;
    }
    if (isInBox && event.key() == Qt::Key_Down) {
        QWidget* below = m_tree;
        if (showsResults())
            below = &list;
        below->setFocus(Qt::OtherFocusReason);
        if (showsResults())
            QApplication::sendEvent(&list, &event); // the first one was current already
        return true;
    }
    if (!isInBox && event.key() == Qt::Key_Up && list.currentIndex().row() <= 0) {
        m_find->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return false;
}

/// What was found stays for the next look at it; what was opened last goes with the focus. So does the index:
/// files may be saved until the box is entered again.
void Navigator::leaveFindBox()
{
    m_finder.forget();
    const auto* focused = QApplication::focusWidget();
    if (focused && focused != m_find && focused != &m_results->list() && m_find->text().trimmed().isEmpty())
        showTree();
}

void Navigator::search()
{
    const QString typed = m_find->text().trimmed();
    if (!typed.isEmpty())
        m_results->show(m_finder.find(typed));
    else if (!m_opened.isEmpty() && m_find->hasFocus())
        m_results->showOpened(m_opened, [this](const QString& key) { return m_finder.captionOf(key); });
    else
        return showTree();
    m_pages->setCurrentWidget(m_results);
}

void Navigator::showTree()
{
    m_pages->setCurrentWidget(m_tree);
}

/// Enter in the box.
void Navigator::choose()
{
    if (showsResults())
        m_results->choose();
    else if (!selectedKey().isEmpty())
        emit chosen();
}

void Navigator::expandGroups()
{
    for (QTreeWidgetItemIterator item(m_tree); *item; ++item) {
        if (isFunctionGroup(keyOf(**item))) // deeper nodes and the archive stay as they are
            (*item)->setExpanded(true);
    }
}

void Navigator::collapseAll()
{
    m_tree->collapseAll();
}

} // namespace quillfen
