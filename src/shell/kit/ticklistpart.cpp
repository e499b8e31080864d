#include "shell/kit/ticklistpart.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/labels.h"
#include "shell/kit/rowlist.h"

namespace quillfen {

TickListPart::TickListPart(TickList ticks, const FormContext& context)
    : m_ticks(std::move(ticks)),
      m_context(context),
      m_list(new RowList(fromBytes(m_ticks.control),
                         m_ticks.label.empty() ? QStringList(fromBytes(m_ticks.caption)) : QStringList(),
                         true)),
      m_widget(m_ticks.label.empty() ? m_list : listWithToolbar(fromBytes(m_ticks.label), nullptr, m_list))
{
    m_list->setAccessibleName(fromBytes(m_ticks.label.empty() ? m_ticks.caption : m_ticks.label));
    connect(m_list, &RowList::tickChanged, this, &FormPart::changed);
    if (m_ticks.help)
        connect(m_list, &RowList::clicked, this, [this](const QModelIndex& index) { showHelp(index.row()); });
}

void TickListPart::load()
{
    m_tooltip.Destroy();
    m_list->setRows(loadOf(m_ticks.file)(m_context.files, m_context.profiles));
}

void TickListPart::restore()
{
    if (!m_ticks.restoreTicks)
        return;
    auto rows = m_list->rows();
    for (CellRow& row : rows)
        row.checked = true;
    m_list->setRows(std::move(rows));
}

void TickListPart::save()
{
    saveOf(m_ticks.file)(m_context.files, m_context.profiles, m_list->rows());
}

void TickListPart::showHelp(int row)
{
    const QModelIndex index = m_list->model()->index(row, 0);
    const QString name = index.data().toString();
    const QString help = fromBytes(m_ticks.help(toBytes(name)));
    m_tooltip.Destroy();
    if (help.isEmpty())
        return;
    m_tooltip.setTitle(name);
    m_tooltip.setText(help);
    const QRect place = m_list->visualRect(index);
    m_tooltip.Create(m_list->viewport(), place.bottomLeft() + QPoint(place.height() * 2, 0));
}

} // namespace quillfen
