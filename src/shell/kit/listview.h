#pragma once

#include <QElapsedTimer>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <functional>
#include <map>
#include <vector>

namespace quillfen {

class ListHeader;

/// What a list's model may tell of a cell besides what Qt asks for.
enum CellRole
{
    WholeText = Qt::UserRole + 1 ///< its text, where the cell shows less of it or nothing
};

/// Draws rows with some air between them.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// A flat list with columns, as every form uses it: quick at any length, with the moves that all lists share.
/// Several rows are selected by Shift and Ctrl; what works on one row works on the first of them. Typing
/// finds a row, and a filter hides those without its words from view: a hidden row is in the list as ever,
/// but it is not selected.
class ListView : public QTreeView
{
    Q_OBJECT

public:
    explicit ListView(const QString& name, QWidget* parent = nullptr);

    /// The first selected row; -1 if none is.
    int currentRow() const;

    /// All selected rows, from the first to the last.
    std::vector<int> selectedRows() const;

    /// The rows that no filter hides.
    std::vector<int> shownRows() const;

    /// The next of them before or behind a row, as `step` is -1 or 1; -1 if there is none.
    int shownRow(int from, int step) const;

    /// Selects one row and no other, and brings it into sight.
    void select(int row);

    /// Off where what is selected has a meaning of its own: then no row is selected but by the user.
    /// Elsewhere a list that has rows has a selected one, which its buttons and keys work on.
    void setSelectsFirst(bool selects) { m_selectsFirst = selects; }

    /// Off where a click does something of its own, which a double click is to do once.
    void setDoubleClickEdits(bool edits) { m_doubleClickEdits = edits; }

    /// Shows a sign at the end of each of these rows, with what it means. They last until rows come or go.
    void setSigns(const std::map<int, QString>& signs);

    /// What a row's sign means; empty for a row without one.
    QString signOf(int row) const;

    /// The widths of the first columns, where they are known without a look at the rows.
    void setColumnWidths(const std::vector<int>& widths);

    /// What the list says in grey while it has no rows.
    void setEmptyText(const QString& text) { m_emptyText = text; }
    QString emptyText() const { return m_emptyText; }

    /// What the keys copy of a row instead of the cells that show.
    void setCopiedCells(std::function<QStringList(int row)> cells) { m_copiedCells = std::move(cells); }

    /// Shows the filter's line, with the cursor in it.
    void openFilter();

    /// What the filter's line holds; empty where it isn't shown.
    QString filter() const;
    void setFilter(const QString& words);

    /// The widths of all columns but the last, which takes what the others leave; empty while no rows have
    /// come to fit them to.
    std::vector<int> columnWidths() const;

    /// Wide enough for its columns and tall enough for its rows, within reason: what is more scrolls.
    QSize sizeHint() const override;

    void setModel(QAbstractItemModel* model) override;
    void keyboardSearch(const QString& typed) override;

signals:
    void editAsked();   ///< double click or Enter on a row
    void deleteAsked(); ///< the Delete key
    void pasteAsked();  ///< served where the list takes rows from the clipboard
    void filterChanged();

    /// Right click, or the menu key; a row under the pointer is selected by then, with those that were where
    /// it was among them. `onRow` tells whether there is one.
    void menuAsked(const QPoint& global, bool onRow);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool isSelected(int row) const;
    int lastColumn() const;
    QString tipOf(const QModelIndex& index) const;
    void fitColumns();
    void selectFirst();
    void applyFilter();
    bool holds(int row, const QStringList& words) const;
    QStringList shownCells(int row) const;
    void copy() const;
    void paste();
    int found(int from, const std::function<bool(const QString&)>& fits) const;

    ListHeader* m_header;
    std::function<QStringList(int row)> m_copiedCells;
    QString m_typed; ///< what was typed to find a row, until a pause
    QElapsedTimer m_sinceTyped;
    QString m_emptyText;
    std::map<int, QString> m_signs;
    bool m_selectsFirst = true;
    bool m_doubleClickEdits = true;
    bool m_fitted = false;    ///< the columns got their widths from the first rows that came
    int m_lastColumnHint = 0; ///< what the last one wants; it takes what the others leave
};

/// Opens the filter of the list that has the focus in a window or stands nearest to what has it.
void openNearestFilter(QWidget& window);

} // namespace quillfen
