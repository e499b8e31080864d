#include "shell/kit/rowlistpart.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/editdialog.h"
#include "shell/kit/labels.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbars.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include <algorithm>

namespace quillfen {
namespace {

EditRequest requestOf(const RowDialog& dialog)
{
    EditRequest request{dialog.form, dialog.addTitle, "A",
                        dialog.addMode.value_or(habitualAddMode(dialog.form)), dialog.labels};
    request.entries = dialog.entries;
    request.ranges = dialog.ranges;
    request.values = dialog.addValues;
    return request;
}

} // namespace

RowListPart::RowListPart(RowListDeclaration declaration, const FormContext& context)
    : m_declaration(std::move(declaration)),
      m_context(context),
      m_list(new RowList(fromBytes(m_declaration.list), texts(m_declaration.columns), m_declaration.ticks)),
      m_toolbar(new QToolBar),
      m_movement(m_declaration.movement.empty() ? nullptr : new QToolBar),
      m_widget(placed())
{
    const int columns = static_cast<int>(m_declaration.columns.size());
    for (int hidden = 1; hidden <= m_declaration.hiddenColumns; ++hidden)
        m_list->setColumnHidden(columns - hidden, true);
    buildToolbar();
    if (m_movement)
        buildMovement();
    connect(m_list, &RowList::tickChanged, this, &FormPart::changed);
    connect(m_list, &RowList::countChanged, this, [this] { followRows(); });
    connect(m_list, &RowList::editAsked, this, [this] { activate(); });
    connect(m_list, &RowList::deleteAsked, this, &RowListPart::removeSelected);
    connect(m_list, &RowList::menuAsked, this,
            [this](const QPoint& at) { m_context.showMenu(fromBytes(m_declaration.menu), at); });
    RowListPart::followRows();
}

void RowListPart::buildToolbar()
{
    m_toolbar->setObjectName(fromBytes(m_declaration.toolbar));
    m_toolbar->setIconSize({16, 16});
    int index = 0;
    if (m_declaration.dialog.addTitle.empty())
        AddEditButton(*m_toolbar, index);
    else
        BuildListToolbar(*m_toolbar, index);
    for (std::size_t place = 0; place < m_declaration.toolTips.size(); ++place)
        m_toolbar->actions()
            .at(static_cast<int>(place))
            ->setToolTip(fromBytes(m_declaration.toolTips[place]));
    connectButton(*m_toolbar, "NEW", this, &RowListPart::add);
    connectButton(*m_toolbar, "EDIT", this, &RowListPart::edit);
    connectButton(*m_toolbar, "DELETE", this, &RowListPart::removeSelected);
}

void RowListPart::buildMovement()
{
    m_movement->setObjectName(fromBytes(m_declaration.movement));
    m_movement->setIconSize({16, 16});
    int index = 0;
    BuildMovementToolbar(*m_movement, index);
    m_list->addActions(m_movement->actions());
    m_list->setSelectsFirst(false); // the buttons tell by their states whether a row is selected
    connectButton(*m_movement, "MoveTop", this, [this] { moveSelected(0); });
    connectButton(*m_movement, "MoveUp", this, [this] { moveSelected(m_list->currentRow() - 1); });
    connectButton(*m_movement, "MoveDown", this, [this] { moveSelected(m_list->currentRow() + 1); });
    connectButton(*m_movement, "MoveBottom", this,
                  [this] { moveSelected(static_cast<int>(m_list->rows().size()) - 1); });
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RowListPart::followSelection);
    connect(m_list, &RowList::countChanged, this, &RowListPart::followSelection);
    followSelection();
}

QWidget* RowListPart::placed()
{
    const QString label = fromBytes(m_declaration.label);
    m_list->setAccessibleName(label.isEmpty() ? fromBytes(m_declaration.columns.front()) : label);
    if (!m_movement)
        return listWithToolbar(label, m_toolbar, m_list);
    auto* toolbars = new QWidget;
    auto* layout = new QHBoxLayout(toolbars);
    layout->setContentsMargins({});
    layout->addWidget(m_toolbar);
    layout->addWidget(m_movement);
    layout->addStretch();
    return listWithToolbar(label, toolbars, m_list);
}

void RowListPart::load()
{
    m_list->setRows(m_declaration.load(m_context.files, m_context.profiles));
}

void RowListPart::restore()
{
    if (m_declaration.restored)
        m_list->setRows(m_declaration.restored(m_context.profiles));
}

void RowListPart::save()
{
    m_declaration.save(m_context.files, m_context.profiles, m_list->rows());
}

RoutineTable RowListPart::routines()
{
    return buttonRoutines(fromBytes(m_declaration.menu), *m_toolbar);
}

bool RowListPart::isLit(const char* key) const
{
    const auto* action = button(*m_toolbar, key);
    return action && action->isEnabled();
}

void RowListPart::add()
{
    if (!isLit("NEW"))
        return;
    addRows(m_list, requestOf(dialog()), [this](const std::vector<std::string>& values) {
        CellRow row{std::vector<std::string>(std::max(m_declaration.columns.size(), values.size()))};
        if (m_declaration.take)
            m_declaration.take(values, row);
        else
            std::copy(values.begin(), values.end(), row.cells.begin());
        if (!mayAdd(row))
            return;
        m_list->append(std::move(row));
        m_list->select(static_cast<int>(m_list->rows().size()) - 1);
        touch();
    });
}

void RowListPart::edit()
{
    const int at = m_list->currentRow();
    if (at < 0 || !isLit("EDIT"))
        return;
    CellRow row = m_list->rows()[static_cast<std::size_t>(at)];
    const RowDialog offered = m_declaration.dialogOf ? m_declaration.dialogOf(row) : dialog();
    EditRequest request = requestOf(offered);
    request.gEditResult = "E";
    request.gEditMode = offered.editMode.value_or(habitualEditMode(offered.form));
    request.title = m_declaration.editTitleOf ? m_declaration.editTitleOf(row) : offered.editTitle;
    if (m_declaration.labelsOf)
        request.labels = m_declaration.labelsOf(row);
    request.values = m_declaration.fieldsOf ? m_declaration.fieldsOf(row) : row.cells;

    const EditAnswer answer = showEditDialog(m_list, request);
    if (answer.gEditResult != "1")
        return;
    if (m_declaration.take)
        m_declaration.take(answer.gEditValues, row);
    else
        std::copy(answer.gEditValues.begin(), answer.gEditValues.end(), row.cells.begin());
    if (!mayTake(row))
        return;
    m_list->replace(at, std::move(row));
    touch();
}

void RowListPart::removeSelected()
{
    const bool isOnly = m_list->rows().size() == 1; // then it is clear which, also when none is selected
    const int at = isOnly ? 0 : m_list->currentRow();
    if (at < 0 || !isLit("DELETE"))
        return;
    const CellRow& row = m_list->rows()[static_cast<std::size_t>(at)];
    const std::string refused = refusal(row);
    if (!refused.empty()) {
        notify(m_list, "Cannot delete", fromBytes(refused), QMessageBox::Critical);
        return;
    }
    const DeleteWords& words = m_declaration.deletion;
    if (!confirm(m_list, fromBytes(words.title), fromBytes(words.text)) || !mayDelete(row))
        return;
    m_list->remove(at);
    touch();
}

std::string RowListPart::refusal(const CellRow& /*row*/) const
{
    return m_list->rows().size() == 1 ? m_declaration.deletion.minimum : std::string();
}

void RowListPart::moveSelected(int place)
{
    m_list->move(m_list->currentRow(), place);
    m_list->select(place);
    followSelection(); // the selection may have moved with its row, which no signal tells
    touch();
}

void RowListPart::followSelection()
{
    const int row = m_list->currentRow();
    const int last = static_cast<int>(m_list->rows().size()) - 1;
    for (const char* key : {"MoveTop", "MoveUp"})
        button(*m_movement, key)->setEnabled(row > 0);
    for (const char* key : {"MoveDown", "MoveBottom"})
        button(*m_movement, key)->setEnabled(row >= 0 && row < last);
}

void RowListPart::followRows()
{
    for (const char* key : {"DELETE", "EDIT", "AMEND"}) {
        if (auto* action = button(*m_toolbar, key))
            action->setEnabled(!m_list->isEmpty());
    }
}

const std::vector<CellRow>& RowListPart::rows() const
{
    return m_list->rows();
}

RowListGroupPart::RowListGroupPart(RowListGroup group, const FormContext& context)
    : m_group(std::move(group)),
      m_context(context),
      m_widget(new QWidget)
{
    auto* layout = new QGridLayout(m_widget);
    layout->setContentsMargins({});
    const int perRow = m_group.lists.size() > 3 ? 2 : 3; // four make a square, and not a narrow band
    for (const RowListDeclaration& list : m_group.lists) {
        auto* part = new RowListPart(list, context);
        adopt(*part);
        const int place = static_cast<int>(m_lists.size());
        layout->addWidget(part->widget(), place / perRow, place % perRow);
        m_lists.push_back(part);
    }
}

void RowListGroupPart::load()
{
    for (RowListPart* list : m_lists)
        list->load();
}

void RowListGroupPart::restore()
{
    for (RowListPart* list : m_lists)
        list->restore();
}

void RowListGroupPart::save()
{
    std::vector<std::vector<CellRow>> rows;
    for (const RowListPart* list : m_lists)
        rows.push_back(list->rows());
    m_group.save(m_context.files, rows);
}

RoutineTable RowListGroupPart::routines()
{
    RoutineTable all;
    for (RowListPart* list : m_lists)
        all.insert(list->routines());
    return all;
}

} // namespace quillfen
