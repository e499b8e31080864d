#pragma once

#include <QStyledItemDelegate>
#include <QTreeView>

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

    /// Off where a click does something of its own, which a double click is to do once.
    void setDoubleClickEdits(bool edits) { m_doubleClickEdits = edits; }

    /// Wide enough for its columns and tall enough for its rows, within reason: what is more scrolls.
    QSize sizeHint() const override;

    void setModel(QAbstractItemModel* model) override;

signals:
    void editAsked();                     ///< double click or Enter on a row
    void deleteAsked();                   ///< the Delete key
    void menuAsked(const QPoint& global); ///< right click; the row under the pointer is selected by then

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void fitColumns();

    bool m_doubleClickEdits = true;
    bool m_fitted = false;    ///< the columns got their widths from the first rows that came
    int m_lastColumnHint = 0; ///< what the last one wants; it takes what the others leave
};

} // namespace quillfen
