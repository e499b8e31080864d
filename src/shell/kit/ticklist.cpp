#include "shell/kit/ticklist.h"

#include "shell/kit/codepagetext.h"

#include <QHeaderView>

#include <algorithm>

namespace quillfen {

TickList::TickList(const QString& name, const QString& caption, QWidget* parent) : QTreeWidget(parent)
{
    setObjectName(name);
    setHeaderLabels({caption});
    header()->setVisible(!caption.isEmpty());
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setTabKeyNavigation(false);
    connect(this, &QTreeWidget::itemChanged, this, &TickList::tickChanged);
}

QSize TickList::sizeHint() const
{
    constexpr int fewest = 6;
    constexpr int most = 26;
    const int rowHeight = std::max(sizeHintForRow(0), fontMetrics().height());
    const int shown = std::clamp(topLevelItemCount() + 1, fewest, most);
    return {fontMetrics().averageCharWidth() * 34, rowHeight * shown + 2 * frameWidth()};
}

std::vector<ListRow> TickList::rows() const
{
    std::vector<ListRow> rows;
    for (int at = 0; at < topLevelItemCount(); ++at) {
        const auto* item = topLevelItem(at);
        rows.push_back({toBytes(item->text(0)), {}, item->checkState(0) == Qt::Checked});
    }
    return rows;
}

void TickList::setRows(const std::vector<ListRow>& rows)
{
    clear();
    QList<QTreeWidgetItem*> items;
    for (const ListRow& row : rows) {
        auto* item = new QTreeWidgetItem({fromBytes(row.text)});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                       Qt::ItemNeverHasChildren);
        item->setCheckState(0, row.checked ? Qt::Checked : Qt::Unchecked);
        items.append(item);
    }
    addTopLevelItems(items);
}

} // namespace quillfen
