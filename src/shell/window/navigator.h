#pragma once

#include <QSet>
#include <QString>
#include <QWidget>

#include <optional>

class QLineEdit;
class QPoint;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace quillfen {

class NavigatorTable;

/// The side bar with the tree of functions, its two buttons, and a box that narrows the tree to what is
/// typed.
class Navigator : public QWidget
{
    Q_OBJECT

public:
    /// The table must outlive it.
    Navigator(const NavigatorTable& table, bool portalShown, QWidget* parent = nullptr);

    /// The selected node's key; empty if none is selected.
    QString selectedKey() const;

    /// Whether a group heading is selected.
    bool headingSelected() const;

    /// Selects a key's node and shows it, without choosing it. A node that the find box has narrowed away
    /// comes with the whole tree.
    void follow(const QString& key);

    /// Shows by a dot at a node that its form has something to save, or takes the dot away.
    void markChanged(const QString& key, bool isChanged);

    /// Lets the user type what to look for.
    void find();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The user chose the selected node.
    void chosen();

    /// The user asked for the menu of the root row; the place is the screen's.
    void rootMenuAsked(const QPoint& at);

private:
    void buildTree(bool portalShown);
    void buildToolbar();
    void buildFindBox();
    QTreeWidgetItem* nodeOf(const QString& key) const;
    void askMenu(const QPoint& at);
    void expandGroups();
    void collapseAll();
    void narrow(const QString& text);
    void showWholeTree();
    void selectFirstMatch();
    void chooseMatch();

    const NavigatorTable& m_table;
    QToolBar* m_toolbar;
    QLineEdit* m_find;
    QTreeWidget* m_tree;
    std::optional<QSet<QTreeWidgetItem*>> m_expanded; ///< the open nodes before the tree was narrowed
    QTreeWidgetItem* m_missed = nullptr;              ///< the node to select when the tree is whole again
};

} // namespace quillfen
