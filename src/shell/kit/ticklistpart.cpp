#include "shell/kit/ticklistpart.h"

#include "settings/tablefile.h"

namespace quillfen {

TickListPart::TickListPart(TickListDescription description, const FormContext& context)
    : m_description(std::move(description)),
      m_context(context),
      m_list(new TickList(m_description.control, m_description.caption))
{
    m_list->setAccessibleName(m_description.caption);
    connect(m_list, &TickList::tickChanged, this, &FormPart::changed);
    connect(m_list, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { showHelp(*item); });
}

void TickListPart::load()
{
    setRows(m_description.load(m_context.files));
}

void TickListPart::restore()
{
    auto rows = m_list->rows();
    for (ListRow& row : rows)
        row.checked = true;
    setRows(rows);
}

void TickListPart::save()
{
    m_description.save(m_context.files, m_list->rows());
}

void TickListPart::setRows(const std::vector<ListRow>& rows)
{
    m_tooltip.Destroy();
    m_list->setRows(rows);
    const QSignalBlocker quiet(m_list);
    for (int at = 0; at < m_list->topLevelItemCount(); ++at) {
        auto* item = m_list->topLevelItem(at);
        item->setData(0, Qt::AccessibleDescriptionRole, m_description.help(item->text(0)));
    }
}

void TickListPart::showHelp(const QTreeWidgetItem& item)
{
    const QString help = m_description.help(item.text(0));
    if (help.isEmpty()) {
        m_tooltip.Destroy();
        return;
    }
    m_tooltip.setTitle(item.text(0));
    m_tooltip.setText(help);
    const QRect row = m_list->visualItemRect(&item);
    m_tooltip.Create(m_list->viewport(), row.bottomLeft() + QPoint(row.height() * 2, 0));
}

} // namespace quillfen
