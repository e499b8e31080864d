#pragma once

#include "declarations/listdeclaration.h"
#include "shell/kit/listview.h"

#include <QStringList>

namespace quillfen {

class RowModel;

/// A list view that holds its own rows, with or without tick boxes in its first column.
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

    /// Puts a row in another's place; those between close up.
    void move(int row, int place);

signals:
    /// The user ticked or unticked a row.
    void tickChanged(int row);

    /// Rows came or went.
    void countChanged();

private:
    RowModel* m_rows;
    bool m_savedByItself = false;
};

} // namespace quillfen
