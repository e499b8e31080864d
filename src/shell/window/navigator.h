#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QKeyEvent;
class QLineEdit;
class QPoint;
class QStackedWidget;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace quillfen {

class Finder;
class FindResults;
class NavigatorTable;

/// The side bar with the tree of functions, its two buttons, and the find box. What is found stands in place
/// of the tree until Escape brings that back.
class Navigator : public QWidget
{
    Q_OBJECT

public:
    /// Table and finder must outlive it.
    Navigator(const NavigatorTable& table, Finder& finder, bool portalShown, QWidget* parent = nullptr);

    /// The selected node's key; empty if none is selected.
    QString selectedKey() const;

    /// Whether a group heading is selected.
    bool headingSelected() const;

    /// Selects a key's node and shows it, without choosing it.
    void follow(const QString& key);

    /// Shows by a dot at a node that its form has something to save, or takes the dot away.
    void markChanged(const QString& key, bool isChanged);

    /// Notes that the form of a key was opened: an empty find box offers those that were opened last.
    void noteOpened(const QString& key);

    /// Lets the user type what to look for.
    void find();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The user chose the selected node.
    void chosen();

    /// The user chose something that was found: a form's control, and in a list a row of it. Without a
    /// control it is the form as a whole.
    void found(const QString& key, const QString& control, int row);

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
    void leaveFindBox();
    void search();
    void showTree();
    void choose();
    bool takesKey(const QObject& watched, QKeyEvent& event);
    bool showsResults() const;

    const NavigatorTable& m_table;
    Finder& m_finder;
    QToolBar* m_toolbar;
    QLineEdit* m_find;
    QStackedWidget* m_pages; ///< the tree, or what was found
    QTreeWidget* m_tree;
    FindResults* m_results;
    QStringList m_opened; ///< keys, the last one first
};

} // namespace quillfen
