#include "shell/kit/rowlistpart.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/labels.h"
#include "shell/kit/messages.h"
#include "shell/kit/pastedrows.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbarlist.h"

#include <QGridLayout>

#include <algorithm>

namespace quillfen {
namespace {

EditRequest requestOf(const RowDialog& dialog)
{
    EditRequest request{dialog.form, dialog.addTitle, EditResult::Add,
                        dialog.addMode.value_or(habitualAddMode(dialog.form)), dialog.labels};
    request.entries = dialog.entries;
    request.ranges = dialog.ranges;
    request.values = dialog.addValues;
    return request;
}

ToolbarListNames toolbarNamesOf(const RowListDeclaration& list, const RowListHooks& hooks)
{
    const std::string& told = list.label.empty() ? list.columns.front() : list.label;
    return {fromBytes(list.toolbar), fromBytes(told), fromBytes(list.label), fromBytes(list.menu),
            hooks.activates};
}

std::vector<ToolbarBuilder> buildersOf(const RowListDeclaration& list, const RowListHooks& hooks)
{
    if (!hooks.builders.empty())
        return hooks.builders;
    return {list.dialog.addTitle.empty() ? AddEditButton : BuildListToolbar};
}

/// What belongs into an empty list, and which button puts it there.
QString emptyTextOf(const RowListDeclaration& list, const QToolBar& toolbar)
{
    QStringList sentences(fromBytes(list.explanation));
    if (button(toolbar, "OPEN"))
        sentences.append("Open reads the rows of the file.");
    else if (const auto* add = button(toolbar, "NEW"))
        sentences.append(add->toolTip() + ": the first button, or the Insert key.");
    sentences.removeAll(QString());
    return sentences.join('\n');
}

} // namespace

RowListPart::RowListPart(RowListDeclaration declaration, const FormContext& context, RowListHooks hooks)
    : m_declaration(std::move(declaration)),
      m_context(context),
      m_hooks(std::move(hooks)),
      m_list(new RowList(fromBytes(m_declaration.list), texts(m_declaration.columns), m_declaration.ticks)),
      m_tools(new ToolbarList(m_list, toolbarNamesOf(m_declaration, m_hooks),
                              buildersOf(m_declaration, m_hooks), context)),
      m_movement(m_declaration.movement.empty()
                     ? nullptr
                     : smallToolbar(fromBytes(m_declaration.movement), {BuildMovementToolbar}))
{
    const int columns = static_cast<int>(m_declaration.columns.size());
    for (int hidden = 1; hidden <= m_declaration.hiddenColumns; ++hidden)
        m_list->setColumnHidden(columns - hidden, true);
    tellInToolTips();
    m_list->setEmptyText(emptyTextOf(m_declaration, m_tools->toolbar()));
    if (!m_declaration.remark.empty())
        m_tools->addRemark(fromBytes(m_declaration.remark));
    if (m_movement)
        buildMovement();
    m_tools->connectButtons(
        this,
        {{"NEW", &RowListPart::add}, {"EDIT", &RowListPart::edit}, {"DELETE", &RowListPart::removeSelected}});
    connect(m_list, &RowList::tickChanged, this, &FormPart::changed);
    if (m_hooks.rowsLightButtons)
        m_tools->letRowsLightButtons();
    if (m_hooks.takesText && !m_declaration.dialog.addTitle.empty() && button(m_tools->toolbar(), "NEW"))
        letRowsBePasted();
}

QWidget* RowListPart::widget()
{
    return m_tools;
}

void RowListPart::tellInToolTips()
{
    std::size_t place = 0;
    const QStringList keys = {"NEW", "DELETE", "EDIT"};
    for (const QString& key : keys) {
        auto* action = button(m_tools->toolbar(), key);
        if (action && place < m_declaration.toolTips.size())
            action->setToolTip(fromBytes(m_declaration.toolTips[place++]));
    }
}

void RowListPart::buildMovement()
{
    m_tools->addToolbar(m_movement);
    m_list->addActions(m_movement->actions());
    m_list->setSelectsFirst(false); // the buttons tell by their states whether a row is selected
    connectButton(*m_movement, "MoveTop", this, [this] { moveSelected(0); });
    connectButton(*m_movement, "MoveUp", this,
                  [this] { moveSelected(m_list->shownRow(m_list->currentRow(), -1)); });
    connectButton(*m_movement, "MoveDown", this,
                  [this] { moveSelected(m_list->shownRow(m_list->currentRow(), 1)); });
    connectButton(*m_movement, "MoveBottom", this,
                  [this] { moveSelected(static_cast<int>(m_list->rows().size()) - 1); });
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RowListPart::followSelection);
    connect(m_list, &RowList::countChanged, this, &RowListPart::followSelection);
    connect(m_list, &RowList::filterChanged, this, &RowListPart::followSelection);
    followSelection();
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
    return m_tools->routines();
}

RowDialog RowListPart::dialog() const
{
    return m_hooks.offer ? m_hooks.offer(m_declaration.dialog) : m_declaration.dialog;
}

void RowListPart::add()
{
    addRows(m_list, requestOf(dialog()), [this](const std::vector<std::string>& fields) {
        CellRow row = newRow(fields);
        if (mayTake(row, nullptr))
            append(std::move(row));
    });
}

CellRow RowListPart::newRow(const std::vector<std::string>& fields) const
{
    return taken(fields, {std::vector<std::string>(std::max(m_declaration.columns.size(), fields.size()))});
}

/// A row is copied as its dialog's fields, so that what is copied can be pasted.
void RowListPart::letRowsBePasted()
{
    m_list->setCopiedCells([this](int row) {
        std::vector<std::string> fields = fieldsOf(rows()[static_cast<std::size_t>(row)]);
        fields.resize(inputsOf(m_declaration.dialog.form).size()); // a row may hold more than its dialog
        return texts(fields);
    });
    connect(m_list, &RowList::pasteAsked, this, &RowListPart::paste);
}

void RowListPart::paste()
{
    if (!m_tools->tool("NEW").isEnabled())
        return;
    const bool isTaken =
        pasteRows(m_list, requestOf(dialog()), [this](const std::vector<std::string>& fields) {
            CellRow row = newRow(fields);
            const auto refused = refusalOf(row, nullptr);
            if (!refused)
                m_list->append(std::move(row));
            return refused ? refused->text : std::string();
        });
    if (!isTaken)
        return;
    m_list->select(static_cast<int>(m_list->rows().size()) - 1);
    touch();
}

void RowListPart::append(CellRow row)
{
    m_list->append(std::move(row));
    m_list->select(static_cast<int>(m_list->rows().size()) - 1);
    touch();
}

void RowListPart::edit()
{
    if (m_list->currentRow() >= 0)
        editRow(m_list->currentRow());
}

EditAnswer RowListPart::editRow(int at)
{
    const CellRow before = m_list->rows()[static_cast<std::size_t>(at)];
    for (;;) {
        EditAnswer answer = showEditDialog(m_list, editRequest(before));
        if (answer.gEditResult != EditResult::Ok)
            return answer;
        CellRow row = taken(answer.gEditValues, before);
        if (mayTake(row, &before)) {
            m_list->replace(at, std::move(row));
            touch();
        } else if (m_declaration.asksAgain) {
            continue;
        }
        return answer;
    }
}

EditRequest RowListPart::editRequest(const CellRow& row) const
{
    const RowDialog offered = m_declaration.dialogOf ? m_declaration.dialogOf(row) : dialog();
    EditRequest request = requestOf(offered);
    request.gEditResult = EditResult::Edit;
    request.gEditMode = offered.editMode.value_or(habitualEditMode(offered.form));
    request.title = m_declaration.editTitleOf ? m_declaration.editTitleOf(row) : offered.editTitle;
    if (m_declaration.labelsOf)
        request.labels = m_declaration.labelsOf(row);
    request.values = fieldsOf(row);
    return request;
}

std::vector<std::string> RowListPart::fieldsOf(const CellRow& row) const
{
    return m_declaration.fieldsOf ? m_declaration.fieldsOf(row) : row.cells;
}

/// The row with what was typed into the fields.
CellRow RowListPart::taken(const std::vector<std::string>& fields, CellRow row) const
{
    if (m_declaration.take)
        m_declaration.take(fields, row);
    else
        std::copy(fields.begin(), fields.end(), row.cells.begin());
    return row;
}

std::optional<RowRefusal> RowListPart::refusalOf(const CellRow& row, const CellRow* before) const
{
    auto refused = m_declaration.refusal ? m_declaration.refusal(rows(), row, before) : std::nullopt;
    return refused || !m_hooks.refusal ? refused : m_hooks.refusal(row, before);
}

bool RowListPart::mayTake(const CellRow& row, const CellRow* before)
{
    if (const auto refused = refusalOf(row, before)) {
        notify(m_list, *refused);
        return false;
    }
    return !m_hooks.accept || m_hooks.accept(m_list, row, before);
}

void RowListPart::touch()
{
    if (m_hooks.note)
        m_hooks.note();
    else
        emit changed();
}

void RowListPart::removeSelected()
{
    const bool isOnly = m_list->rows().size() == 1; // then it is clear which, also when none is selected
    const std::vector<int> selected = isOnly ? m_list->shownRows() : m_list->selectedRows();
    if (selected.empty() || !mayDelete(selected))
        return;
    const std::vector<int> gone = released(selected);
    if (gone.empty())
        return;
    m_list->remove(gone);
    if (const int first = m_list->shownRow(-1, 1); m_declaration.selectsFirst && first >= 0)
        m_list->select(first);
    touch();
}

/// Asks once, however many rows are to go; all of them go or, where one of them may not, none.
bool RowListPart::mayDelete(const std::vector<int>& selected)
{
    const DeleteWords& words = m_declaration.deletion;
    std::string refused;
    for (const int row : selected) {
        if (m_hooks.refuse && refused.empty())
            refused = m_hooks.refuse(rows()[static_cast<std::size_t>(row)]);
    }
    if (refused.empty() && selected.size() == rows().size())
        refused = words.minimum;
    if (!refused.empty()) {
        notify(m_list, "Cannot delete", fromBytes(refused), QMessageBox::Critical);
        return false;
    }
    return confirm(m_list, fromBytes(words.title), fromBytes(words.text));
}

/// Those of the rows, up to the first that has to stay, whose belongings could be let go.
std::vector<int> RowListPart::released(const std::vector<int>& selected)
{
    if (!m_hooks.release)
        return selected;
    const auto stays = [this](int row) {
        return !m_hooks.release(m_list, rows()[static_cast<std::size_t>(row)]);
    };
    return {selected.begin(), std::find_if(selected.begin(), selected.end(), stays)};
}

void RowListPart::moveSelected(int place)
{
    m_list->move(m_list->currentRow(), place);
    m_list->select(place);
    followSelection(); // the selection may have moved with its row, which no signal tells
    touch();
}

/// One row is moved at a time, and over those that a filter hides to the next in sight.
void RowListPart::followSelection()
{
    const std::vector<int> selected = m_list->selectedRows();
    const bool isOne = selected.size() == 1;
    const int row = isOne ? selected.front() : -1;
    const int last = static_cast<int>(m_list->rows().size()) - 1;
    button(*m_movement, "MoveTop")->setEnabled(row > 0);
    button(*m_movement, "MoveUp")->setEnabled(isOne && m_list->shownRow(row, -1) >= 0);
    button(*m_movement, "MoveDown")->setEnabled(isOne && m_list->shownRow(row, 1) >= 0);
    button(*m_movement, "MoveBottom")->setEnabled(isOne && row < last);
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
