#include "shell/kit/permissiongridpart.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/labels.h"
#include "shell/kit/listview.h"
#include "shell/kit/toolbarlist.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>

namespace quillfen {
namespace {

/// A command's word inside a sentence: "TimeBan" is "time ban" there.
QString spoken(const QString& word)
{
    QString text;
    for (const QChar character : word) {
        if (character.isUpper() && !text.isEmpty() && text.back().isLower())
            text += u' ';
        text += character;
    }
    return text.toLower();
}

} // namespace

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

    const QString& commandFilter() const { return m_commandFilter; }
    const QString& profileFilter() const { return m_profileFilter; }

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

    /// Gives rows, which stand in order, one answer.
    void allow(const std::vector<int>& rows, bool allowed)
    {
        for (const int row : rows)
            m_cells[m_shown[static_cast<std::size_t>(row)]].allowed = allowed;
        emit dataChanged(index(rows.front(), 0), index(rows.back(), columnCount() - 1));
    }

    /// A row in words: "Operator may ban VIP: No".
    QString sentence(int row) const
    {
        const PermissionCell& cell = shown(row);
        const QString command = spoken(m_commands[cell.command]);
        if (!m_words.targets) // the words of such grids are no verbs
            return command.left(1).toUpper() + command.mid(1) + " for " + profile(cell.by) + ": " +
                   answer(cell);
        QStringList words = {profile(cell.by), "may", command};
        if (!m_words.targetLink.empty())
            words.append(fromBytes(m_words.targetLink));
        words.append(target(cell.on));
        return words.join(u' ') + ": " + answer(cell);
    }

    /// What the filters let through; empty where that is everything.
    QString filterWords() const
    {
        QStringList words;
        if (!m_commandFilter.isEmpty())
            words.append(m_commandFilter);
        if (!m_profileFilter.isEmpty())
            words.append("by " + m_profileFilter);
        return words.join(u' ');
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
        switch (role) {
        case Qt::DisplayRole:
            return text(index.row(), index.column());
        case WholeText:
            return wholeText(shown(index.row()), index.column());
        case Qt::AccessibleTextRole: // blank cells would tell a listener nothing
            return sentence(index.row());
        default:
            return {};
        }
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
    bool isNamed(int row, int column) const
    {
        const PermissionCell& cell = shown(row);
        const PermissionCell* above = row > 0 ? &shown(row - 1) : nullptr;
        const bool newCommand = !above || above->command != cell.command;
        const bool newProfile = newCommand || above->by != cell.by;
        switch (column) {
        case 0:
            return newCommand || (newProfile && m_words.namesCommandByProfile);
        case 1:
            return newProfile;
        case 2:
            return !m_words.targets || m_words.namesTarget || !above || above->on != cell.on;
        default:
            return true;
        }
    }

    QString text(int row, int column) const
    {
        return isNamed(row, column) ? wholeText(shown(row), column) : QString();
    }

    QString wholeText(const PermissionCell& cell, int column) const
    {
        switch (column) {
        case 0:
            return m_commands[cell.command];
        case 1:
            return profile(cell.by);
        case 2:
            return m_words.targets ? target(cell.on) : answer(cell);
        case 3:
            return answer(cell);
        default:
            return column == 4 ? keyOf(cell.by) : keyOf(cell.on);
        }
    }

    const QString& answer(const PermissionCell& cell) const { return cell.allowed ? m_yes : m_no; }

    QString profile(std::size_t row) const { return fromBytes(m_profiles.names()[row]); }

    bool isNoProfile(std::size_t target) const { return target >= m_profiles.count(); }
    QString named(std::size_t target) const { return m_named.at(target - m_profiles.count()); }
    QString target(std::size_t place) const { return isNoProfile(place) ? named(place) : profile(place); }

    QString keyOf(std::size_t place) const
    {
        return isNoProfile(place) ? named(place) : fromBytes(HubProfiles::key(place));
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

/// A row whose cells leave command and profiles to the rows above it names them where those aren't in sight:
/// on top of a scrolled grid, and behind rows that a filter hides.
class GroupNamesDelegate : public RowDelegate
{
public:
    using RowDelegate::RowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        RowDelegate::initStyleOption(option, index);
        const auto* list = qobject_cast<const QTreeView*>(option->widget);
        if (!option->text.isEmpty() || !list || !isFirstInSight(*list, index.row()))
            return;
        option->text = index.data(WholeText).toString();
        option->features |= QStyleOptionViewItem::HasDisplay;
        option->palette.setBrush(QPalette::Text, option->palette.placeholderText());
    }

private:
    static bool isFirstInSight(const QTreeView& list, int row)
    {
        return list.indexAt({0, 0}).row() == row || (row > 0 && list.isRowHidden(row - 1, {}));
    }
};

/// What tells a command's entry from a profile's: its key begins so.
const QString commandMark = QStringLiteral("C*");

/// The buttons that take their filter off when they are pressed.
const QString commandButton = QStringLiteral("COMMAND");
const QString profileButton = QStringLiteral("PROFILE");

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
      m_tools(new ToolbarList(m_list, {fromBytes(m_words.toolbar), "Permissions"}, {AddEditButton}, context))
{
    m_list->setModel(m_model);
    m_list->setItemDelegate(new GroupNamesDelegate(m_list));
    connect(m_list->verticalScrollBar(), &QScrollBar::valueChanged, m_list->viewport(),
            qOverload<>(&QWidget::update)); // a scroll paints only what it brings into sight
    fitColumns();
    for (int column = 4; column < m_model->columnCount(); ++column)
        m_list->setColumnHidden(column, true);
    m_tools->connectButtons(this, {{"EDIT", &PermissionGridPart::toggle}});
    if (m_words.filters)
        addFilters();
    m_list->setDoubleClickEdits(!m_words.clickToggles);
    if (m_words.clickToggles)
        connect(m_list, &QTreeView::clicked, this, &PermissionGridPart::toggleByClick);
    connect(new QShortcut(Qt::Key_Space, m_list, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            &m_tools->tool("EDIT"), &QAction::trigger);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PermissionGridPart::tellRow);
    connect(m_list, &ListView::menuAsked, this, &PermissionGridPart::showMenu);
}

/// Each column shows its widest text, which may stand in any of thousands of rows: by what the texts are made
/// of, and not by the rows.
void PermissionGridPart::fitColumns()
{
    const QFontMetrics metrics = m_list->fontMetrics();
    const auto widestOf = [&metrics](const std::vector<std::string>& texts) {
        int width = 0;
        for (const std::string& text : texts)
            width = std::max(width, metrics.horizontalAdvance(fromBytes(text)));
        return width;
    };
    const int profile = widestOf(m_context.profiles.names());
    const int target = m_words.targets ? std::max(profile, widestOf(m_source.named)) : 0;
    std::vector<int> widths = {widestOf(m_source.commands), profile, target};
    const int margin = 3 * metrics.averageCharWidth();
    for (int column = 0; column < 3; ++column) {
        int& width = widths[static_cast<std::size_t>(column)];
        width = std::max(width, m_list->header()->sectionSizeHint(column)) + margin;
    }
    m_list->setColumnWidths(widths);
}

QWidget* PermissionGridPart::widget()
{
    return m_tools;
}

void PermissionGridPart::addFilters()
{
    int index = static_cast<int>(m_tools->toolbar().actions().size());
    auto* commands =
        addFilter(index, fromBytes(m_words.commandFilter), fromBytes(m_words.commandFilterTip), "command");
    for (const std::string& command : m_source.commands) {
        const QString word = fromBytes(command);
        commands->menu()->addAction(word)->setObjectName(commandMark + word);
    }
    auto* profiles = addFilter(index, profileButton, "View By Profile", "profile");
    for (const std::string& name : m_context.profiles.names()) {
        const QString word = fromBytes(name);
        profiles->menu()->addAction(withoutKeys(word))->setObjectName(word);
    }
}

QAction* PermissionGridPart::addFilter(int& index, const QString& key, const QString& toolTip,
                                       const QString& icon)
{
    QToolBar& toolbar = m_tools->toolbar();
    auto* filter = addButton(toolbar, index, key, toolTip, icon);
    filter->setCheckable(true);
    filter->setMenu(new QMenu(&toolbar));
    qobject_cast<QToolButton*>(toolbar.widgetForAction(filter))->setPopupMode(QToolButton::MenuButtonPopup);
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
    tellRow();
}

void PermissionGridPart::release(QAction* filter)
{
    if (filter->objectName() == commandButton) {
        m_model->setCommandFilter(QString());
    } else if (filter->objectName() == profileButton) {
        m_model->setProfileFilter(QString());
    } else {
        filter->setChecked(!filter->isChecked()); // the press changes nothing, so it looks as before
        return;
    }
    filter->setChecked(false);
    tellRow();
}

GridFilter PermissionGridPart::filter() const
{
    GridFilter filter{{}, m_model->profileFilter()};
    if (button(m_tools->toolbar(), commandButton))
        filter.command = m_model->commandFilter();
    return filter;
}

void PermissionGridPart::setFilter(const GridFilter& filter)
{
    if (!filter.command.isEmpty())
        choose(&m_tools->tool(commandButton), commandMark + filter.command);
    if (!filter.profile.isEmpty())
        choose(&m_tools->tool(profileButton), filter.profile);
}

void PermissionGridPart::load()
{
    show(m_source.load(m_context.files, m_context.profiles));
}

void PermissionGridPart::save()
{
    m_source.save(cells(), m_context.files, m_context.profiles);
}

void PermissionGridPart::show(std::vector<PermissionCell> cells)
{
    m_model->setCells(std::move(cells));
    tellRow();
}

const std::vector<PermissionCell>& PermissionGridPart::cells() const
{
    return m_model->cells();
}

RoutineTable PermissionGridPart::routines()
{
    const auto toggleRow = [this] { toggle(); };
    return {{routineName("mnuTrueFalse", "True"), {toggleRow}},
            {routineName("mnuTrueFalse", "False"), {toggleRow}}};
}

void PermissionGridPart::toggle()
{
    const std::vector<int> rows = m_list->selectedRows();
    if (rows.empty())
        return;
    m_model->allow(rows, !m_model->isAllowed(rows.front()));
    tellRow();
    emit changed();
}

/// A click with Shift or Ctrl chooses rows.
void PermissionGridPart::toggleByClick()
{
    if ((QApplication::keyboardModifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) == 0)
        toggle();
}

void PermissionGridPart::tellRow()
{
    QStringList said;
    if (const QString row = rowSentence(); !row.isEmpty())
        said.append(row);
    if (const QString filter = m_model->filterWords(); !filter.isEmpty())
        said.append("shown: " + filter);
    emit note(said.join("; "));
}

QString PermissionGridPart::rowSentence() const
{
    const std::vector<int> rows = m_list->selectedRows();
    if (rows.empty())
        return {};
    const QString first = m_model->sentence(rows.front());
    return rows.size() == 1 ? first : QString("%1 rows, the first: %2").arg(rows.size()).arg(first);
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
