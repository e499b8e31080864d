#include "shell/kit/toolbarlist.h"

#include "shell/kit/labels.h"
#include "shell/kit/listview.h"

#include <QShortcut>
#include <QVBoxLayout>

namespace quillfen {

ToolbarList::ToolbarList(ListView* list, const ToolbarListNames& names,
                         const std::vector<ToolbarBuilder>& builders, const FormContext& context)
    : m_list(list),
      m_toolbar(smallToolbar(names.toolbar, {})),
      m_toolbars(new QHBoxLayout),
      m_menu(names.menu)
{
    m_list->setAccessibleName(names.accessibleName);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    if (!names.label.isEmpty())
        layout->addWidget(labelFor(names.label, m_list));
    layout->addLayout(m_toolbars);
    m_toolbars->addWidget(m_toolbar);
    layout->addWidget(m_list, 1);
    addButtons(*m_toolbar, builders); // behind the list, so that Tab comes to the list first

    connect(m_list, &ListView::editAsked, this, [this, key = names.activates] { press(key); });
    connect(m_list, &ListView::deleteAsked, this, [this] { press("DELETE"); });
    addKey(Qt::Key_F2, "EDIT");
    addKey(Qt::Key_Insert, "NEW");
    if (!m_menu.isEmpty())
        connect(m_list, &ListView::menuAsked, this,
                [this, context](const QPoint& at) { context.showMenu(m_menu, at); });
}

QAction& ToolbarList::tool(const QString& key) const
{
    return *button(*m_toolbar, key);
}

void ToolbarList::press(const QString& key)
{
    auto* pressed = key.isEmpty() ? nullptr : button(*m_toolbar, key);
    if (pressed)
        pressed->trigger();
}

void ToolbarList::addKey(Qt::Key pressed, const QString& key)
{
    connect(new QShortcut(pressed, m_list, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
            [this, key] { press(key); });
}

void ToolbarList::letRowsLightButtons()
{
    const auto* rows = m_list->model();
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(rows, signal, this, &ToolbarList::followRows);
    connect(rows, &QAbstractItemModel::modelReset, this, &ToolbarList::followRows);
    followRows();
}

void ToolbarList::followRows()
{
    const bool areThere = m_list->model()->rowCount() > 0;
    const QStringList keys = {"DELETE", "EDIT", "AMEND"};
    for (const QString& key : keys) {
        if (auto* needsRow = button(*m_toolbar, key))
            needsRow->setEnabled(areThere);
    }
}

void ToolbarList::addToolbar(QToolBar* toolbar)
{
    m_toolbars->addWidget(toolbar);
    m_toolbars->addStretch();
}

void ToolbarList::addRemark(const QString& text)
{
    auto* remark = new QLabel(text);
    remark->setTextFormat(Qt::PlainText);
    remark->setWordWrap(true);
    layout()->addWidget(remark);
}

RoutineTable ToolbarList::routines() const
{
    return buttonRoutines(m_menu, *m_toolbar);
}

} // namespace quillfen
