#pragma once

#include "declarations/griddeclaration.h"
#include "settings/permissiongrid.h"
#include "shell/kit/formpart.h"

class QAction;

namespace quillfen {

class ListView;
class PermissionModel;
class ToolbarList;

/// What a grid shows of its rows; empty: all.
struct GridFilter
{
    QString command{};
    QString profile{};
};

/// A permission grid: one row per command, acting profile and target profile, toggled between yes and no, and
/// filtered by command and by acting profile. What a filter hides is saved all the same. Of several selected
/// rows each gets the answer that a toggle gives to the first. The second status panel tells the first in a
/// sentence.
class PermissionGridPart : public FormPart
{
    Q_OBJECT

public:
    PermissionGridPart(GridSource source, GridWords words, const FormContext& context);
    PermissionGridPart(const PermissionGrid& grid, GridWords words, const FormContext& context);

    QWidget* widget() override;
    void load() override;
    void restore() override {} ///< grids have no defaults
    void save() override;
    RoutineTable routines() override;

    /// For a part that has the grid's cells from a file of its own.
    void show(std::vector<PermissionCell> cells);
    const std::vector<PermissionCell>& cells() const;

    /// What is filtered now, as far as a press of the filter's button takes it off again.
    GridFilter filter() const;
    void setFilter(const GridFilter& filter);

    ToolbarList& tools() const { return *m_tools; }

private:
    void addFilters();
    QAction* addFilter(int& index, const QString& key, const QString& toolTip, const QString& icon);
    void choose(QAction* filter, const QString& entry);
    void release(QAction* filter);
    void toggle();
    void toggleByClick();
    void tellRow();
    QString rowSentence() const;
    void showMenu(const QPoint& at, bool onRow);
    void fitColumns();

    GridSource m_source;
    GridWords m_words;
    FormContext m_context;
    PermissionModel* m_model;
    ListView* m_list;
    ToolbarList* m_tools;
};

} // namespace quillfen
