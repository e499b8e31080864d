#pragma once

#include "settings/tablefile.h"

#include <QTreeWidget>

#include <vector>

namespace quillfen {

/// A list of one column with a tick box in each row.
class TickList : public QTreeWidget
{
    Q_OBJECT

public:
    /// An empty caption shows no header.
    TickList(const QString& name, const QString& caption, QWidget* parent = nullptr);

    /// The rows' texts and ticks.
    std::vector<ListRow> rows() const;
    void setRows(const std::vector<ListRow>& rows);

    /// Tall enough for its rows, within reason.
    QSize sizeHint() const override;

signals:
    void tickChanged();
};

} // namespace quillfen
