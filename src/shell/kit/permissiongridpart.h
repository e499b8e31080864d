#pragma once

#include "declarations/griddeclaration.h"
#include "settings/permissiongrid.h"
#include "shell/kit/formpart.h"

class QAction;
class QToolBar;

namespace quillfen {

class ListView;
class PermissionModel;

/// A permission grid: one row per command, acting profile and target profile, toggled between yes and no, and
/// filtered by command and by acting profile. What a filter hides is saved all the same.
class PermissionGridPart : public FormPart
{
    Q_OBJECT

public:
    PermissionGridPart(GridSource source, GridWords words, const FormContext& context);
    PermissionGridPart(const PermissionGrid& grid, GridWords words, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override {} ///< grids have no defaults
    void save() override;
    RoutineTable routines() override;

private:
    void buildToolbar();
    QAction* addFilter(int& index, const QString& key, const QString& toolTip, const QString& icon);
    void choose(QAction* filter, const QString& entry);
    void release(QAction* filter);
    void toggle();
    void showMenu(const QPoint& at, bool onRow);
    void fitColumns();

    GridSource m_source;
    GridWords m_words;
    FormContext m_context;
    PermissionModel* m_model;
    ListView* m_list;
    QToolBar* m_toolbar;
    QWidget* m_widget;
};

} // namespace quillfen
