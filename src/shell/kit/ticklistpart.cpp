#include "shell/kit/ticklistpart.h"

#include "settings/listdeclaration.h"
#include "shell/kit/labels.h"
#include "shell/kit/rowlist.h"

namespace quillfen {

TickListPart::TickListPart(TickListDescription description, const FormContext& context)
    : m_description(std::move(description)),
      m_context(context),
      m_list(new RowList(m_description.control,
                         m_description.label.isEmpty() ? QStringList(m_description.caption) : QStringList(),
                         true)),
      m_widget(m_description.label.isEmpty() ? m_list : labelled(m_description.label, m_list))
{
    m_list->setAccessibleName(m_description.label.isEmpty() ? m_description.caption : m_description.label);
    connect(m_list, &RowList::tickChanged, this, &FormPart::changed);
    if (m_description.help)
        connect(m_list, &RowList::clicked, this, [this](const QModelIndex& index) { showHelp(index.row()); });
}

void TickListPart::load()
{
    m_tooltip.Destroy();
    m_list->setRows(loadOf(m_description.file)(m_context.files, m_context.profiles));
}

void TickListPart::restore()
{
    if (!m_description.restoreTicks)
        return;
    auto rows = m_list->rows();
    for (CellRow& row : rows)
        row.checked = true;
    m_list->setRows(std::move(rows));
}

void TickListPart::save()
{
    saveOf(m_description.file)(m_context.files, m_context.profiles, m_list->rows());
}

void TickListPart::showHelp(int row)
{
    const QModelIndex index = m_list->model()->index(row, 0);
    const QString name = index.data().toString();
    const QString help = m_description.help(name);
    m_tooltip.Destroy();
    if (help.isEmpty())
        return;
    m_tooltip.setTitle(name);
    m_tooltip.setText(help);
    const QRect place = m_list->visualRect(index);
    m_tooltip.Create(m_list->viewport(), place.bottomLeft() + QPoint(place.height() * 2, 0));
}

} // namespace quillfen
