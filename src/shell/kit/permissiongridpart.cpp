#include "shell/kit/permissiongridpart.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/labels.h"
#include "shell/kit/listview.h"
#include "shell/kit/toolbars.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

namespace quillfen {

/// The cells that pass the filters, each worded as it is painted: 64 profiles make 24,576 rows.
class PermissionModel : public QAbstractTableModel
{
public:
    PermissionModel(const GridSource& source, const GridWords& words, const HubProfiles& profiles,
                    QObject* parent)
        : QAbstractTableModel(parent),
          m_words(words),
          m_yes(fromBytes(words.yes)),
          m_no(fromBytes(words.no)),
          m_profiles(profiles)
    {
        for (const std::string& command : source.commands)
            m_commands.push_back(fromBytes(command));
        for (const std::string& target : source.named)
            m_named.push_back(fromBytes(target));
    }

    const std::vector<PermissionCell>& cells() const { return m_cells; }

    void setCells(std::vector<PermissionCell> cells)
    {
        m_cells = std::move(cells);
        filter();
    }

    void setCommandFilter(const QString& command)
    {
        m_commandFilter = command;
        filter();
    }

    void setProfileFilter(const QString& profile)
    {
        m_profileFilter = profile;
        filter();
    }

    bool isAllowed(int row) const { return shown(row).allowed; }

    void toggle(int row)
    {
        PermissionCell& cell = m_cells[m_shown[static_cast<std::size_t>(row)]];
        cell.allowed = !cell.allowed;
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
    }

    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_words.columns.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole ? text(index.row(), index.column()) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        return fromBytes(m_words.columns.at(static_cast<std::size_t>(section)));
    }

    Qt::ItemFlags flags(const QModelIndex& /*index*/) const override
    {
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    }

private:
    const PermissionCell& shown(int row) const { return m_cells[m_shown[static_cast<std::size_t>(row)]]; }

    /// A command or profile is named where it is another than in the row above, so that groups can be seen.
    QString text(int row, int column) const
    {
        const PermissionCell& cell = shown(row);
        const PermissionCell* above = row > 0 ? &shown(row - 1) : nullptr;
        const bool newCommand = !above || above->command != cell.command;
        const bool newProfile = newCommand || above->by != cell.by;
        switch (column) {
        case 0:
            return newCommand || (newProfile && m_words.namesCommandByProfile) ? m_commands[cell.command]
                                                                               : QString();
        case 1:
            return newProfile ? profile(cell.by) : QString();
        case 2:
            if (!m_words.targets)
                return answer(cell);
            return m_words.namesTarget || !above || above->on != cell.on ? target(cell.on) : QString();
        case 3:
            return answer(cell);
        default:
            return column == 4 ? keyOf(cell.by) : keyOf(cell.on);
        }
    }

    const QString& answer(const PermissionCell& cell) const { return cell.allowed ? m_yes : m_no; }

    QString profile(std::size_t row) const { return fromBytes(m_profiles.names()[row]); }

    bool isNamed(std::size_t target) const { return target >= m_profiles.count(); }
    QString named(std::size_t target) const { return m_named.at(target - m_profiles.count()); }
    QString target(std::size_t place) const { return isNamed(place) ? named(place) : profile(place); }

    QString keyOf(std::size_t place) const
    {
        return isNamed(place) ? named(place) : fromBytes(HubProfiles::key(place));
    }

    void filter()
    {
        beginResetModel();
        m_shown.clear();
        for (std::size_t at = 0; at < m_cells.size(); ++at) {
            const PermissionCell& cell = m_cells[at];
            if ((m_commandFilter.isEmpty() || m_commandFilter == m_commands[cell.command]) &&
                (m_profileFilter.isEmpty() || m_profileFilter == profile(cell.by)))
                m_shown.push_back(at);
        }
        endResetModel();
    }

    GridWords m_words;
    QString m_yes;
    QString m_no;
    const HubProfiles& m_profiles;
    std::vector<QString> m_commands;
    std::vector<QString> m_named;
    QString m_commandFilter;
    QString m_profileFilter;
    std::vector<PermissionCell> m_cells;
    std::vector<std::size_t> m_shown; ///< the places of the cells that pass the filters
};

namespace {

/// What tells a command's entry from a profile's: its key begins so.
const QString commandMark = QStringLiteral("C*");

} // namespace

PermissionGridPart::PermissionGridPart(const PermissionGrid& grid, GridWords words,
                                       const FormContext& context)
    : PermissionGridPart(sourceOf(grid), std::move(words), context)
{
}

PermissionGridPart::PermissionGridPart(GridSource source, GridWords words, const FormContext& context)
    : m_source(std::move(source)),
      m_words(std::move(words)),
      m_context(context),
      m_model(new PermissionModel(m_source, m_words, context.profiles, this)),
      m_list(new ListView(fromBytes(m_words.list))),
      m_toolbar(new QToolBar),
      m_widget(listWithToolbar(QString(), m_toolbar, m_list))
{
    m_list->setModel(m_model);
    m_list->setAccessibleName("Permissions");
    fitColumns();
    for (int column = 4; column < m_model->columnCount(); ++column)
        m_list->setColumnHidden(column, true);
    buildToolbar();
    m_list->setDoubleClickEdits(!m_words.clickToggles);
    if (m_words.clickToggles)
        connect(m_list, &QTreeView::clicked, this, &PermissionGridPart::toggle);
    connect(m_list, &ListView::editAsked, this, &PermissionGridPart::toggle);
    connect(m_list, &ListView::menuAsked, this, &PermissionGridPart::showMenu);
}

/// Each column shows its widest text, which may stand in any of thousands of rows: by what the texts are made
/// of, and not by the rows.
void PermissionGridPart::fitColumns()
{
    const QFontMetrics metrics = m_list->fontMetrics();
    const auto widest = [&metrics](const std::vector<std::string>& texts) {
        int width = 0;
        for (const std::string& text : texts)
            width = std::max(width, metrics.horizontalAdvance(fromBytes(text)));
        return width;
    };
    const int profile = widest(m_context.profiles.names());
    const int target = m_words.targets ? std::max(profile, widest(m_source.named)) : 0;
    std::vector<int> widths = {widest(m_source.commands), profile, target};
    const int margin = 3 * metrics.averageCharWidth();
    for (int column = 0; column < 3; ++column) {
        int& width = widths[static_cast<std::size_t>(column)];
        width = std::max(width, m_list->header()->sectionSizeHint(column)) + margin;
    }
    m_list->setColumnWidths(widths);
}

void PermissionGridPart::buildToolbar()
{
    m_toolbar->setObjectName(fromBytes(m_words.toolbar));
    m_toolbar->setIconSize({16, 16});
    int index = 0;
    AddEditButton(*m_toolbar, index);
    connectButton(*m_toolbar, "EDIT", this, &PermissionGridPart::toggle);
    if (!m_words.filters)
        return;
    auto* commands =
        addFilter(index, fromBytes(m_words.commandFilter), fromBytes(m_words.commandFilterTip), "command");
    for (const std::string& command : m_source.commands) {
        const QString word = fromBytes(command);
        commands->menu()->addAction(word)->setObjectName(commandMark + word);
    }
    auto* profiles = addFilter(index, "PROFILE", "View By Profile", "profile");
    for (const std::string& name : m_context.profiles.names()) {
        const QString word = fromBytes(name);
        profiles->menu()->addAction(withoutKeys(word))->setObjectName(word);
    }
}

QAction* PermissionGridPart::addFilter(int& index, const QString& key, const QString& toolTip,
                                       const QString& icon)
{
    auto* filter = addButton(*m_toolbar, index, key, toolTip, icon);
    filter->setCheckable(true);
    filter->setMenu(new QMenu(m_toolbar));
    qobject_cast<QToolButton*>(m_toolbar->widgetForAction(filter))
        ->setPopupMode(QToolButton::MenuButtonPopup);
    connect(filter, &QAction::triggered, this, [this, filter] { release(filter); });
    connect(filter->menu(), &QMenu::triggered, this,
            [this, filter](const QAction* entry) { choose(filter, entry->objectName()); });
    return filter;
}

void PermissionGridPart::choose(QAction* filter, const QString& entry)
{
    if (entry.startsWith(commandMark))
        m_model->setCommandFilter(entry.mid(commandMark.size()));
    else
        m_model->setProfileFilter(entry);
    filter->setChecked(true);
}

void PermissionGridPart::release(QAction* filter)
{
    if (filter->objectName() == "COMMAND") {
        m_model->setCommandFilter(QString());
    } else if (filter->objectName() == "PROFILE") {
        m_model->setProfileFilter(QString());
    } else {
        filter->setChecked(!filter->isChecked()); // the press changes nothing, so it looks as before
        return;
    }
    filter->setChecked(false);
}

void PermissionGridPart::load()
{
    m_model->setCells(m_source.load(m_context.files, m_context.profiles));
}

void PermissionGridPart::save()
{
    m_source.save(m_model->cells(), m_context.files, m_context.profiles);
}

RoutineTable PermissionGridPart::routines()
{
    const auto toggleRow = [this] { toggle(); };
    return {{routineName("mnuTrueFalse", "True"), {toggleRow}},
            {routineName("mnuTrueFalse", "False"), {toggleRow}}};
}

void PermissionGridPart::toggle()
{
    const int row = m_list->currentRow();
    if (row < 0)
        return;
    m_model->toggle(row);
    emit changed();
}

void PermissionGridPart::showMenu(const QPoint& at, bool onRow)
{
    auto* menu = m_context.popUpMenu("mnuTrueFalse");
    const int row = m_list->currentRow();
    if (!menu || !onRow || row < 0) // a press below the last row is on no cell
        return;
    const auto actions = menu->actions();
    actions.at(0)->setEnabled(!m_model->isAllowed(row));
    actions.at(1)->setEnabled(m_model->isAllowed(row));
    menu->popup(at);
}

} // namespace quillfen
