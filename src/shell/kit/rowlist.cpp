#include "shell/kit/rowlist.h"

#include "shell/kit/longtext.h"

#include <QAbstractTableModel>
#include <QHeaderView>

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

void RowList::move(int row, int place)
{
    m_rows->move(row, place);
}

} // namespace quillfen
