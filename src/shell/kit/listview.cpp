#include "shell/kit/listview.h"

#include "shell/kit/controlsign.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextDocument>
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

ListView::ListView(const QString& name, QWidget* parent) : QTreeView(parent)
{
    setObjectName(name);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
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
    const auto selected = selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    return selected.isEmpty() ? -1 : selected.constFirst().row();
}

void ListView::select(int row)
{
    setCurrentIndex(model()->index(row, 0));
}

void ListView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &ListView::fitColumns);
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
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString sign = signOf(indexAt(help->pos()).row());
        if (!sign.isEmpty()) {
            QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(sign), viewport());
            return true;
        }
    }
    return QTreeView::viewportEvent(event);
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
    if (ticks && currentIndex().isValid())
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
    if (index.isValid())
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

} // namespace quillfen
