#include "shell/kit/listview.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace quillfen {

ListView::ListView(const QString& name, QWidget* parent) : QTreeView(parent)
{
    setObjectName(name);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
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

QSize ListView::sizeHint() const
{
    const int fewest = header()->isHidden() ? 6 : 10; // the small ones beside other controls have no header
    constexpr int most = 26;
    const int rowHeight = std::max(sizeHintForRow(0), fontMetrics().height());
    const int rows = model() ? model()->rowCount() : 0;
    const int columns = header()->count() - header()->hiddenSectionCount();
    return {fontMetrics().averageCharWidth() * (header()->isHidden() ? 34 : 20 + 24 * std::max(columns, 1)),
            rowHeight * std::clamp(rows + 1, fewest, most) + 2 * frameWidth()};
}

void ListView::keyPressEvent(QKeyEvent* event)
{
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
                                               : viewport()->mapToGlobal(visualRect(index).bottomLeft()));
}

} // namespace quillfen
