#include "shell/kit/listview.h"

#include "shell/kit/controlsign.h"
#include "shell/kit/listheader.h"
#include "shell/kit/longtext.h"
#include "shell/kit/rowtext.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

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

ListView::ListView(const QString& name, QWidget* parent) : QTreeView(parent), m_header(new ListHeader(this))
{
    setObjectName(name);
    setHeader(m_header);
    connect(m_header, &ListHeader::filterChanged, this, &ListView::applyFilter);
    connect(m_header, &ListHeader::filterLeft, this, [this] { setFocus(); });
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

int ListView::shownRow(int from, int step) const
{
    const int rows = model()->rowCount();
    int row = from + step;
    while (row >= 0 && row < rows && isRowHidden(row, {}))
        row += step;
    return row < rows ? std::max(row, -1) : -1;
}

bool ListView::isSelected(int row) const
{
    return selectionModel()->isRowSelected(row, {});
}

/// Says so itself, as Qt would look at the keys that are held.
void ListView::select(int row)
{
    if (isRowHidden(row, {}))
        setRowHidden(row, {}, false);
    selectionModel()->setCurrentIndex(model()->index(row, 0),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ListView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &ListView::fitColumns);
    connect(model, &QAbstractItemModel::modelReset, this, &ListView::applyFilter);
    connect(model, &QAbstractItemModel::modelReset, this, &ListView::selectFirst);
    connect(model, &QAbstractItemModel::rowsInserted, this, &ListView::selectFirst);
    const auto forget = [this] { setSigns({}); };
    connect(model, &QAbstractItemModel::modelReset, this, forget);
    connect(model, &QAbstractItemModel::rowsInserted, this, forget);
    connect(model, &QAbstractItemModel::rowsRemoved, this, forget);
    connect(model, &QAbstractItemModel::rowsMoved, this, forget);
}

void ListView::setSigns(const std::map<int, QString>& signs)
{
    if (m_signs == signs)
        return;
    m_signs = signs;
    viewport()->update();
}

QString ListView::signOf(int row) const
{
    const auto sign = m_signs.find(row);
    return sign == m_signs.end() ? QString() : sign->second;
}

void ListView::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QTreeView::drawRow(painter, option, index);
    if (!signOf(index.row()).isEmpty())
        drawSign(*painter, {viewport()->width() - signSize - 3, option.rect.center().y() - signSize / 2,
                            signSize, signSize});
}

bool ListView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QTreeView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString tip = tipOf(indexAt(help->pos()));
    if (tip.isEmpty())
        return QTreeView::viewportEvent(event);
    QToolTip::showText(help->globalPos(), toolTipOf(tip), viewport());
    return true;
}

void ListView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_emptyText.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    constexpr int margin = 8;
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_emptyText);
}

/// What a row's sign means, else the text of a cell that is too narrow for it.
QString ListView::tipOf(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    QString sign = signOf(index.row());
    if (!sign.isEmpty())
        return sign;
    const bool isCut = sizeHintForIndex(index).width() > visualRect(index).width();
    return isCut ? index.data(Qt::DisplayRole).toString() : QString();
}

void ListView::selectFirst()
{
    if (!m_selectsFirst || !model() || currentRow() >= 0)
        return;
    if (const int first = shownRow(-1, 1); first >= 0)
        select(first);
}

void ListView::openFilter()
{
    m_header->openFilter();
}

QString ListView::filter() const
{
    return m_header->filter();
}

void ListView::setFilter(const QString& words)
{
    m_header->setFilter(words);
}

/// Rows that come later show in any case: they were just made.
void ListView::applyFilter()
{
    const QStringList words = m_header->filter().split(u' ', Qt::SkipEmptyParts);
    const std::vector<int> selected = selectedRows();
    for (int row = 0; row < model()->rowCount(); ++row) {
        const bool isHidden = !holds(row, words);
        if (isHidden != isRowHidden(row, {}))
            setRowHidden(row, {}, isHidden);
    }
    for (const int row : selected) {
        if (isRowHidden(row, {})) // nothing out of sight is edited or deleted
            selectionModel()->select(model()->index(row, 0),
                                     QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    }
    if (const QModelIndex current = currentIndex(); current.isValid() && isRowHidden(current.row(), {}))
        selectionModel()->clearCurrentIndex();
    selectFirst();
    emit filterChanged();
}

/// Whether a row shows all words, in letters of any case.
bool ListView::holds(int row, const QStringList& words) const
{
    if (words.isEmpty())
        return true;
    const QString text = shownCells(row).join(u'\n');
    return std::all_of(words.begin(), words.end(),
                       [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

/// The texts of a row's cells, whole also where the cells show less.
QStringList ListView::shownCells(int row) const
{
    QStringList cells;
    for (int column = 0; column < model()->columnCount(); ++column) {
        if (!isColumnHidden(column))
            cells.append(model()->index(row, column).data(WholeText).toString());
    }
    return cells;
}

void ListView::copy() const
{
    QList<QStringList> rows;
    for (const int row : selectedRows())
        rows.append(m_copiedCells ? m_copiedCells(row) : shownCells(row));
    if (!rows.isEmpty())
        QApplication::clipboard()->setText(textOfRows(rows));
}

void ListView::paste()
{
    if (isSignalConnected(QMetaMethod::fromSignal(&ListView::pasteAsked)))
        emit pasteAsked();
    else
        QToolTip::showText(mapToGlobal(rect().center()), "This list takes no rows from the clipboard", this);
}

/// What is typed without a pause is sought at the beginning of the cells, then inside them. A single letter
/// goes on to the next row that begins so.
void ListView::keyboardSearch(const QString& typed)
{
    if (typed.isEmpty() || !typed.back().isPrint())
        return;
    if (!m_sinceTyped.isValid() || m_sinceTyped.hasExpired(QApplication::keyboardInputInterval()))
        m_typed.clear();
    m_sinceTyped.start();
    m_typed += typed;
    if (m_typed.trimmed().isEmpty())
        return;
    const bool isOneLetter = m_typed.count(m_typed.front(), Qt::CaseInsensitive) == m_typed.size();
    const QString sought = isOneLetter ? m_typed.left(1) : m_typed;
    const int from = currentRow() + (isOneLetter ? 1 : 0);
    int row =
        found(from, [&sought](const QString& cell) { return cell.startsWith(sought, Qt::CaseInsensitive); });
    if (row < 0)
        row = found(from,
                    [&sought](const QString& cell) { return cell.contains(sought, Qt::CaseInsensitive); });
    if (row >= 0)
        select(row);
}

/// The first row in sight, from one on and round to it again, one of whose cells fits; -1 if none does.
int ListView::found(int from, const std::function<bool(const QString&)>& fits) const
{
    const int rows = model()->rowCount();
    for (int step = 0; step < rows; ++step) {
        const int row = (std::max(from, 0) + step) % rows;
        if (isRowHidden(row, {}))
            continue;
        const QStringList cells = shownCells(row);
        if (std::any_of(cells.begin(), cells.end(), fits))
            return row;
    }
    return -1;
}

/// The last of those that show: the hidden ones are behind it.
int ListView::lastColumn() const
{
    return header()->count() - header()->hiddenSectionCount() - 1;
}

void ListView::fitColumns()
{
    if (m_fitted || model()->rowCount() == 0)
        return;
    m_fitted = true;
    const int character = fontMetrics().averageCharWidth();
    const int last = lastColumn();
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

std::vector<int> ListView::columnWidths() const
{
    std::vector<int> widths;
    for (int column = 0; m_fitted && column < lastColumn(); ++column)
        widths.push_back(header()->sectionSize(column));
    return widths;
}

QSize ListView::sizeHint() const
{
    const int fewest = header()->isHidden() ? 6 : 10; // the small ones beside other controls have no header
    constexpr int most = 20;
    const int rowHeight = std::max(sizeHintForRow(0), fontMetrics().height());
    const int rows = model() ? model()->rowCount() : 0;
    const int last = lastColumn();
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
    else if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::Paste))
        paste();
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
    const int behind = shownRow(end, 1);
    const int next = behind >= 0 ? behind : shownRow(start, -1);
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

void openNearestFilter(QWidget& window)
{
    QWidget* nearest = QApplication::focusWidget();
    if (!nearest || !window.isAncestorOf(nearest))
        nearest = &window;
    for (; nearest; nearest = nearest == &window ? nullptr : nearest->parentWidget()) {
        auto* list = qobject_cast<ListView*>(nearest);
        if (!list)
            list = nearest->findChild<ListView*>();
        if (list) {
            list->openFilter();
            return;
        }
    }
}

} // namespace quillfen
