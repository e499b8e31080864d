#pragma once

#include <QHash>
#include <QToolBar>

namespace quillfen {

class NavigatorTable;
struct NavigatorRow;

/// The main window's toolbar: the side bar's button, a drop-down of forms for each group, and the maker's
/// pages.
class TopToolbar : public QToolBar
{
    Q_OBJECT

public:
    TopToolbar(const NavigatorTable& table, bool portalShown, QWidget* parent = nullptr);

signals:
    void sideBarToggled();
    void donateChosen();
    void scriptsChosen();

    /// An entry of a drop-down, or the next one of a group whose button was pressed.
    void formChosen(const QString& key);

private:
    void insertGroup(const NavigatorTable& table, const NavigatorRow& row, int& index, bool portalShown);
    void walk(const QString& group);

    QHash<QString, int> m_walked; ///< per group, the place of the entry that its button opened last
};

} // namespace quillfen
