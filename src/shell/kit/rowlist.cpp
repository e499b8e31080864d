#include "shell/kit/rowlist.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/longtext.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaMethod>

#include <algorithm>

namespace quillfen {

/// The rows behind a RowList: bytes, which become screen text as they are shown, the start of a long one.
class RowModel : public QAbstractTableModel
{
public:
    RowModel(QStringList columns, bool ticks, RowList& list)
        : QAbstractTableModel(&list),
          m_columns(std::move(columns)),
          m_ticks(ticks),
          m_list(list)
    {
    }

    const std::vector<CellRow>& rows() const { return m_rows; }

    void setRows(std::vector<CellRow> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }

    void append(CellRow row)
    {
        beginInsertRows({}, rowCount(), rowCount());
        m_rows.push_back(std::move(row));
        endInsertRows();
    }

    void replace(int row, CellRow cells)
    {
        m_rows.at(static_cast<std::size_t>(row)) = std::move(cells);
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    }

    bool removeRows(int row, int count, const QModelIndex& parent = {}) override
    {
        if (parent.isValid() || row < 0 || count < 1 || row + count > rowCount())
            return false;
        beginRemoveRows({}, row, row + count - 1);
        m_rows.erase(m_rows.begin() + row, m_rows.begin() + row + count);
        endRemoveRows();
        return true;
    }

    void move(int row, int place)
    {
        // Qt counts the place as the row before which this one comes to stand.
        if (row == place || !beginMoveRows({}, row, row, {}, place > row ? place + 1 : place))
            return;
        const auto at = [this](int each) { return m_rows.begin() + each; };
        if (row < place)
            std::rotate(at(row), at(row + 1), at(place + 1));
        else
            std::rotate(at(place), at(row), at(row + 1));
        endMoveRows();
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(std::max<qsizetype>(m_columns.size(), 1));
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const CellRow& row = m_rows.at(static_cast<std::size_t>(index.row()));
        const auto column = static_cast<std::size_t>(index.column());
        if (role == Qt::DisplayRole)
            return column < row.cells.size() ? shownPart(row.cells[column]) : QString();
        if (role == WholeText)
            return column < row.cells.size() ? fromBytes(row.cells[column]) : QString();
        if (role == Qt::CheckStateRole && m_ticks && column == 0)
            return row.checked ? Qt::Checked : Qt::Unchecked;
        if (role == Qt::AccessibleDescriptionRole)
            return m_list.signOf(index.row());
        if (role == Qt::FontRole && row.bold) {
            QFont font = m_list.font();
            font.setBold(true);
            return font;
        }
        return {};
    }

    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        if (role != Qt::CheckStateRole || !m_ticks || index.column() != 0)
            return false;
        m_rows.at(static_cast<std::size_t>(index.row())).checked = value.toInt() == Qt::Checked;
        emit dataChanged(index, index, {role});
        emit m_list.tickChanged(index.row());
        return true;
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
        return m_ticks && index.column() == 0 ? base | Qt::ItemIsUserCheckable : base;
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        return m_columns.value(section);
    }

private:
    QStringList m_columns;
    bool m_ticks;
    RowList& m_list;
    std::vector<CellRow> m_rows;
};

RowList::RowList(const QString& name, const QStringList& columns, bool ticks, QWidget* parent)
    : ListView(name, parent),
      m_rows(new RowModel(columns, ticks, *this))
{
    setModel(m_rows);
    header()->setVisible(!columns.isEmpty());
    header()->setDefaultSectionSize(fontMetrics().averageCharWidth() * 24);
    if (ticks)
        addTickActions();
    connect(m_rows, &QAbstractItemModel::modelReset, this, &RowList::countChanged);
    connect(m_rows, &QAbstractItemModel::rowsInserted, this, &RowList::countChanged);
    connect(m_rows, &QAbstractItemModel::rowsRemoved, this, &RowList::countChanged);
}

const std::vector<CellRow>& RowList::rows() const
{
    return m_rows->rows();
}

void RowList::setRows(std::vector<CellRow> rows)
{
    m_rows->setRows(std::move(rows));
}

void RowList::append(CellRow row)
{
    m_rows->append(std::move(row));
}

void RowList::replace(int row, CellRow cells)
{
    m_rows->replace(row, std::move(cells));
}

void RowList::remove(int row)
{
    m_rows->removeRows(row, 1);
}

void RowList::addTickActions()
{
    const auto add = [this](const char* name, const QString& text, const QKeySequence& keys,
                            const std::function<bool(const CellRow&)>& ticked) {
        auto* action = new QAction(text, this);
        action->setObjectName(name);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, [this, ticked] { tick(shownRows(), ticked); });
        addAction(action);
        m_tickActions.append(action);
    };
    add("TickAll", "&All", Qt::CTRL | Qt::Key_A, [](const CellRow&) { return true; });
    add("TickNone", "&None", Qt::CTRL | Qt::SHIFT | Qt::Key_A, [](const CellRow&) { return false; });
    add("TickInvert", "&Invert", Qt::CTRL | Qt::Key_I, [](const CellRow& row) { return !row.checked; });
}

void RowList::setTicksTogether(bool together)
{
    for (QAction* action : m_tickActions)
        action->setEnabled(together);
}

/// Ticks or unticks rows as each row tells; those that are so already haven't changed.
void RowList::tick(const std::vector<int>& rows, const std::function<bool(const CellRow&)>& ticked)
{
    for (const int row : rows) {
        const CellRow& each = m_rows->rows()[static_cast<std::size_t>(row)];
        const bool on = ticked(each);
        if (on != each.checked)
            m_rows->setData(m_rows->index(row, 0), on ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    }
}

/// Space gives several selected rows the tick that the first one gets.
void RowList::keyPressEvent(QKeyEvent* event)
{
    const std::vector<int> selected = selectedRows();
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier || selected.size() < 2 ||
        m_tickActions.isEmpty() || !m_tickActions.first()->isEnabled()) {
        ListView::keyPressEvent(event);
        return;
    }
    const bool on = !rows()[static_cast<std::size_t>(selected.front())].checked;
    tick(selected, [on](const CellRow&) { return on; });
}

void RowList::contextMenuEvent(QContextMenuEvent* event)
{
    ListView::contextMenuEvent(event);
    const bool hasMenu = isSignalConnected(QMetaMethod::fromSignal(&ListView::menuAsked));
    if (hasMenu || m_tickActions.isEmpty() || !m_tickActions.first()->isEnabled())
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(m_tickActions);
    menu->popup(event->globalPos());
}

/// Run by run from the last, as those before it keep their places.
void RowList::remove(const std::vector<int>& rows)
{
    for (std::size_t end = rows.size(); end > 0;) {
        std::size_t begin = end - 1;
        while (begin > 0 && rows[begin - 1] + 1 == rows[begin])
            --begin;
        m_rows->removeRows(rows[begin], static_cast<int>(end - begin));
        end = begin;
    }
}

void RowList::move(int row, int place)
{
    m_rows->move(row, place);
}

} // namespace quillfen
