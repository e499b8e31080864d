#pragma once

#include "settings/permissiongrid.h"
#include "shell/kit/formpart.h"

class QAction;

namespace quillfen {

class ListView;
class PermissionModel;
class ToolbarList;

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
    bool namesCommandByProfile = false; ///< each acting profile's first row names the command
    bool targets = true;                ///< false: one value per command and profile, and three columns
    bool clickToggles = false;          ///< a click on a row toggles it

    /// The button that shows one command. A press of it takes the filter off if its key is COMMAND.
    QString commandFilter = "COMMAND";
    QString commandFilterTip = "View By Command";
};

/// The words of a grid without filters: each row names its target, and hidden columns hold the profiles'
/// keys.
GridWords unfilteredGrid();

/// The same with the command in the first row of each acting profile.
GridWords blockGrid();

/// A permission grid: one row per command, acting profile and target profile, toggled between yes and no, and
/// filtered by command and by acting profile. What a filter hides is saved all the same.
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

    ToolbarList& tools() const { return *m_tools; }

private:
    void addFilters();
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
    ToolbarList* m_tools;
};

} // namespace quillfen
