#pragma once

#include "declarations/listdeclaration.h"
#include "shell/kit/listview.h"

#include <QStringList>

#include <functional>

namespace quillfen {

class RowModel;

/// A list view that holds its own rows, with or without tick boxes in its first column. Ticks can be set
/// together: all, none and the other way round by keys, and by right click where nobody serves that.
class RowList : public ListView
{
    Q_OBJECT

public:
    /// Without captions there is one column and no header.
    RowList(const QString& name, const QStringList& columns, bool ticks, QWidget* parent = nullptr);

    const std::vector<CellRow>& rows() const;
    bool isEmpty() const { return rows().empty(); }
    void setRows(std::vector<CellRow> rows);

    /// Whether a button of its own saves the list, and the form's SAVE doesn't.
    bool isSavedByItself() const { return m_savedByItself; }
    void setSavedByItself() { m_savedByItself = true; }
    void append(CellRow row);
    void replace(int row, CellRow cells);
    void remove(int row);

    /// Removes several rows, which stand in order.
    void remove(const std::vector<int>& rows);

    /// Off where a tick does something of its own, once for each.
    void setTicksTogether(bool together);

    /// Puts a row in another's place; those between close up.
    void move(int row, int place);

signals:
    /// The user ticked or unticked a row.
    void tickChanged(int row);

    /// Rows came or went.
    void countChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void addTickActions();
    void tick(const std::vector<int>& rows, const std::function<bool(const CellRow&)>& ticked);

    RowModel* m_rows;
    bool m_savedByItself = false;
    QList<QAction*> m_tickActions; ///< none where there are no ticks
};

} // namespace quillfen
