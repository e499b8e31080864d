#pragma once

#include "settings/permissiongrid.h"
#include "shell/kit/formpart.h"

class QAction;
class QToolBar;

namespace quillfen {

class ListView;
class PermissionModel;

/// The words and names of a grid's list. Columns behind the fourth are hidden: the keys of the acting and the
/// target profile.
struct GridWords
{
    QString list = "lvwPermissions";
    QString toolbar = "tlbListview";
    QStringList columns = {"Command", "By Profile", "On Profile", "Allow To"};
    QString yes = "Yes";
    QString no = "No";
    bool filters = true;      ///< the buttons that show one command or one acting profile
    bool namesTarget = false; ///< each row names its target profile, also where the row above has the same
};

/// A permission grid: one row per command, acting profile and target profile, toggled between yes and no, and
/// filtered by command and by acting profile. What a filter hides is saved all the same.
class PermissionGridPart : public FormPart
{
    Q_OBJECT

public:
    PermissionGridPart(PermissionGrid grid, GridWords words, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override {} ///< grids have no defaults
    void save() override;
    RoutineTable routines() override;

private:
    void buildToolbar();
    QAction* addFilter(int& index, const QString& key, const QString& toolTip);
    void choose(QAction* filter, const QString& entry);
    void release(QAction* filter);
    void toggle();
    void showMenu(const QPoint& at);

    PermissionGrid m_grid;
    GridWords m_words;
    FormContext m_context;
    PermissionModel* m_model;
    ListView* m_list;
    QToolBar* m_toolbar;
    QWidget* m_widget;
};

} // namespace quillfen
