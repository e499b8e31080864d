#pragma once

#include <QString>
#include <QWidget>

class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace quillfen {

/// The side bar with the tree of functions and its two buttons.
class Navigator : public QWidget
{
    Q_OBJECT

public:
    explicit Navigator(bool portalShown, QWidget* parent = nullptr);

    /// The selected node's key; empty if none is selected.
    QString selectedKey() const;

    /// Whether a group heading is selected.
    bool headingSelected() const;

signals:
    /// The user chose the selected node.
    void chosen();

private:
    void buildTree(bool portalShown);
    void buildToolbar();
    void expandGroups();
    void collapseAll();

    QToolBar* m_toolbar;
    QTreeWidget* m_tree;
};

} // namespace quillfen
