#pragma once

#include <QTreeView>

namespace quillfen {

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

    /// Tall enough for its rows, within reason.
    QSize sizeHint() const override;

signals:
    void editAsked();                     ///< double click or Enter on a row
    void deleteAsked();                   ///< the Delete key
    void menuAsked(const QPoint& global); ///< right click; the row under the pointer is selected by then

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    bool m_doubleClickEdits = true;
};

} // namespace quillfen
