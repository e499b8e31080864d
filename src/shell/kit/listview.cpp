#include "shell/kit/listview.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace quillfen {

namespace {

/// The narrowest and the widest that a list opens a column with, in characters. The last one may show
/// sentences.
constexpr int narrowest = 10;
constexpr int widest = 40;
constexpr int lastNarrowest = 24;
constexpr int lastWidest = 60;

} // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), size.height() + std::max(4, size.height() / 4)};
}

ListView::ListView(const QString& name, QWidget* parent) : QTreeView(parent)
{
    setObjectName(name);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setItemDelegate(new RowDelegate(this));
    header()->setResizeContentsPrecision(64); // so many rows tell how wide a column is
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.isValid() && m_doubleClickEdits)
            emit editAsked();
    });
}

int ListView::currentRow() const
{
    int first = -1;
    for (const QItemSelectionRange& range :
         selectionModel() ? selectionModel()->selection() : QItemSelection())
        first = first < 0 ? range.top() : std::min(first, range.top());
    return first;
}

std::vector<int> ListView::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range :
         selectionModel() ? selectionModel()->selection() : QItemSelection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end()); // hidden columns part a row in ranges
    return rows;
}

std::vector<int> ListView::shownRows() const
{
    std::vector<int> rows;
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (!isRowHidden(row, {}))
            rows.push_back(row);
    }
    return rows;
}

bool ListView::isSelected(int row) const
{
    return selectionModel()->isRowSelected(row, {});
}

/// Says so itself, as Qt would look at the keys that are held.
void ListView::select(int row)
{
    selectionModel()->setCurrentIndex(model()->index(row, 0),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ListView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &ListView::fitColumns);
    connect(model, &QAbstractItemModel::modelReset, this, &ListView::selectFirst);
    connect(model, &QAbstractItemModel::rowsInserted, this, &ListView::selectFirst);
}

void ListView::selectFirst()
{
    if (m_selectsFirst && model() && model()->rowCount() > 0 && currentRow() < 0)
        select(0);
}

void ListView::fitColumns()
{
    if (m_fitted || model()->rowCount() == 0)
        return;
    m_fitted = true;
    const int character = fontMetrics().averageCharWidth();
    const int last = header()->count() - header()->hiddenSectionCount() - 1; // the hidden ones are the last
    for (int column = 0; column <= last; ++column) {
        const int wanted =
            std::max(sizeHintForColumn(column), header()->sectionSizeHint(column)) + 2 * character;
        if (column < last)
            header()->resizeSection(column, std::clamp(wanted, narrowest * character, widest * character));
        else
            m_lastColumnHint = wanted;
    }
}

void ListView::setColumnWidths(const std::vector<int>& widths)
{
    m_fitted = true;
    for (std::size_t column = 0; column < widths.size(); ++column)
        header()->resizeSection(static_cast<int>(column), widths[column]);
}

QSize ListView::sizeHint() const
{
    const int fewest = header()->isHidden() ? 6 : 10; // the small ones beside other controls have no header
    constexpr int most = 20;
    const int rowHeight = std::max(sizeHintForRow(0), fontMetrics().height());
    const int rows = model() ? model()->rowCount() : 0;
    const int last = header()->count() - header()->hiddenSectionCount() - 1;
    const int character = fontMetrics().averageCharWidth();
    int width = std::clamp(m_lastColumnHint, lastNarrowest * character, lastWidest * character);
    for (int column = 0; column < last; ++column)
        width += header()->sectionSize(column);
    width = std::clamp(width, 34 * character, 110 * character);
    return {width + verticalScrollBar()->sizeHint().width() + 2 * frameWidth(),
            rowHeight * std::clamp(rows + 1, fewest, most) + 2 * frameWidth()};
}

void ListView::keyPressEvent(QKeyEvent* event)
{
    const bool ticks = event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
    if (ticks && currentIndex().isValid() && !isSelected(currentIndex().row()))
        select(currentIndex().row()); // a tick by key is a tick of a selected row, as one by the mouse is
    if (event->key() == Qt::Key_Delete)
        emit deleteAsked();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit editAsked();
    else
        QTreeView::keyPressEvent(event);
}

void ListView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = byMouse ? indexAt(event->pos()) : currentIndex();
    if (index.isValid() && !isSelected(index.row()))
        select(index.row());
    emit menuAsked(byMouse || !index.isValid() ? event->globalPos()
                                               : viewport()->mapToGlobal(visualRect(index).bottomLeft()),
                   index.isValid());
}

void ListView::focusInEvent(QFocusEvent* event)
{
    QTreeView::focusInEvent(event);
    selectFirst();
}

/// Where all that is selected goes, the row behind it is selected, or the last that stays before it.
void ListView::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    const std::vector<int> selected = selectedRows();
    const bool allGo = !selected.empty() && selected.front() >= start && selected.back() <= end;
    const int next = end + 1 < model()->rowCount() ? end + 1 : start - 1;
    if (allGo && next >= 0)
        select(next);
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

/// A press below the last row leaves what is selected.
QItemSelectionModel::SelectionFlags ListView::selectionCommand(const QModelIndex& index,
                                                               const QEvent* event) const
{
    return index.isValid() ? QTreeView::selectionCommand(index, event) : QItemSelectionModel::NoUpdate;
}

} // namespace quillfen
