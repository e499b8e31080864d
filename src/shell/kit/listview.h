#pragma once

#include <QStyledItemDelegate>
#include <QTreeView>

#include <map>
#include <vector>

namespace quillfen {

/// Draws rows with some air between them.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// A flat list with columns, as every form uses it: one selected row, quick at any length, and the moves that
/// all lists share.
class ListView : public QTreeView
{
    Q_OBJECT

public:
    explicit ListView(const QString& name, QWidget* parent = nullptr);

    /// The selected row; -1 if none is.
    int currentRow() const;
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

    /// Wide enough for its columns and tall enough for its rows, within reason: what is more scrolls.
    QSize sizeHint() const override;

    void setModel(QAbstractItemModel* model) override;

signals:
    void editAsked();   ///< double click or Enter on a row
    void deleteAsked(); ///< the Delete key

    /// Right click, or the menu key; a row under the pointer is selected by then. `onRow` tells whether there
    /// is one.
    void menuAsked(const QPoint& global, bool onRow);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    bool viewportEvent(QEvent* event) override;

private:
    void fitColumns();
    void selectFirst();

    std::map<int, QString> m_signs;
    bool m_selectsFirst = true;
    bool m_doubleClickEdits = true;
    bool m_fitted = false;    ///< the columns got their widths from the first rows that came
    int m_lastColumnHint = 0; ///< what the last one wants; it takes what the others leave
};

} // namespace quillfen
