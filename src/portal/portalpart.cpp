#include "portal/portalpart.h"

#include "settings/codepage.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/editdialog.h"
#include "shell/kit/labels.h"
#include "shell/kit/messages.h"
#include "shell/kit/pastedrows.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbarlist.h"
#include "shell/kit/units.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace quillfen {
namespace {

constexpr QLatin1String caption("Communication ~ Portal");
constexpr std::size_t fullHubList = 2;

/// A row of the hub list keeps its columns in this order.
CellRow hubRow(const HubRow& hub)
{
    return {{hub.address, hub.password, hub.port, hub.hubName}};
}

/// The first cell of a nick's row is its ID, which is hidden and not stored.
CellRow nickRow(std::string nick)
{
    return {{"1", std::move(nick)}};
}

EditRequest hubRequest(const char* title)
{
    return {EditForm::ThreeFields,
            title,
            EditResult::Add,
            habitualAddMode(EditForm::ThreeFields),
            {"Hub Address", "Client Password", "Client Port"}};
}

EditRequest nickRequest(const char* title)
{
    return {EditForm::OneFields, title, EditResult::Add, habitualAddMode(EditForm::OneFields), {"Nick"}};
}

EditAnswer edited(QWidget* parent, EditRequest request, std::vector<std::string> values)
{
    request.gEditResult = EditResult::Edit;
    request.gEditMode = habitualEditMode(request.form);
    request.values = std::move(values);
    return showEditDialog(parent, request);
}

/// Lets a list's columns follow its width.
class ColumnWidths : public QObject
{
public:
    /// `fit` gives the columns their widths.
    ColumnWidths(RowList& list, std::function<void(QHeaderView& columns, int width)> fit)
        : QObject(&list),
          m_list(list),
          m_fit(std::move(fit))
    {
        list.header()->setStretchLastSection(false);
        list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            m_fit(*m_list.header(), m_list.width());
        return QObject::eventFilter(watched, event);
    }

private:
    RowList& m_list;
    std::function<void(QHeaderView& columns, int width)> m_fit;
};

/// Since a tick works on the selected row, a press on a tick box, which by itself selects nothing, selects
/// its row first.
class TickSelects : public QObject
{
public:
    explicit TickSelects(RowList& list) : QObject(&list), m_list(list)
    {
        list.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress) {
            const auto at = m_list.indexAt(static_cast<QMouseEvent*>(event)->position().toPoint());
            if (at.isValid())
                m_list.select(at.row());
        }
        return QObject::eventFilter(watched, event);
    }

private:
    RowList& m_list;
};

void fitHubColumns(QHeaderView& columns, int width)
{
    columns.resizeSection(0, width / 2);
    columns.resizeSection(1, width / 4);
    columns.resizeSection(2, width / 4 - twips(300));
}

void fitNickColumn(QHeaderView& columns, int width)
{
    columns.resizeSection(1, width - twips(300));
}

} // namespace

PortalPart::PortalPart(const FormContext& context)
    : m_context(context),
      m_hubs(new RowList("lvwHubs", {"Hub Address", "Client Password", "Client Port", "HubName"}, true)),
      m_hubTools(new ToolbarList(m_hubs, {"tlbHubs", "Hub Settings", "Hub Settings", "mnuFirst"},
                                 {BuildListToolbar}, context)),
      m_nicks(new RowList("lvwNicks", {"ID", "Nicks"}, false)),
      m_nickTools(new ToolbarList(m_nicks, {"tlbNicks", "Nicks To Ignore", "Nicks To Ignore", "mnuSecond"},
                                  {BuildListToolbar}, context)),
      m_widget(placed()),
      m_live(new LiveLinks(*this))
{
    m_hubs->setColumnHidden(static_cast<int>(HubColumn::HubName), true);
    new ColumnWidths(*m_hubs, fitHubColumns);
    new TickSelects(*m_hubs);
    m_hubs->setTicksTogether(false); // a tick opens a link
    m_hubs->setSelectionMode(QAbstractItemView::SingleSelection);
    new ColumnWidths(*m_nicks, fitNickColumn);
    m_nicks->setColumnHidden(0, true); // not before, or the header would keep the column's room free
    for (auto* list : {m_hubs, m_nicks})
        list->setSelectsFirst(false); // a selected hub is the one that ticks work on
    connectLists();
}

PortalPart::~PortalPart()
{
    m_live->release();
}

QWidget* PortalPart::placed()
{
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins({});
    layout->addWidget(identity());
    layout->addWidget(m_hubTools, 2);
    layout->addWidget(m_nickTools, 3);
    return widget;
}

QWidget* PortalPart::identity()
{
    auto* widget = new QWidget;
    auto* layout = new QFormLayout(widget);
    layout->setContentsMargins({});
    for (std::size_t at = 0; at < m_fields.size(); ++at) {
        auto* field = new QLineEdit;
        field->setObjectName(QStringLiteral("txtTextBox(%1)").arg(at));
        field->setAccessibleName(fromBytes(portalLabels[at]));
        limitToOneLine(*field);
        connect(field, &QLineEdit::textChanged, this, &FormPart::changed);
        auto* label = labelFor(fromBytes(portalLabels[at]), field);
        label->setObjectName(QStringLiteral("lblLabel(%1)").arg(at));
        layout->addRow(label, field);
        m_fields[at] = field;
    }
    return widget;
}

void PortalPart::connectLists()
{
    m_hubTools->connectButtons(
        this,
        {{"NEW", &PortalPart::addHub}, {"DELETE", &PortalPart::deleteHub}, {"EDIT", &PortalPart::editHub}});
    m_nickTools->connectButtons(this, {{"NEW", &PortalPart::addNick},
                                       {"DELETE", &PortalPart::deleteNick},
                                       {"EDIT", &PortalPart::editNick}});
    for (auto* tools : {m_hubTools, m_nickTools})
        tools->letRowsLightButtons();
    connect(m_hubs, &RowList::tickChanged, this, &PortalPart::followTick);
    connect(m_hubs, &RowList::pasteAsked, this, &PortalPart::pasteHubs);
    connect(m_nicks, &RowList::pasteAsked, this, &PortalPart::pasteNicks);
    connect(m_nicks, &RowList::countChanged, this, [this] { m_ignored.reset(); });
    connect(m_nicks->model(), &QAbstractItemModel::dataChanged, this, [this] { m_ignored.reset(); });
}

RoutineTable PortalPart::routines()
{
    RoutineTable all = m_hubTools->routines();
    all.insert(m_nickTools->routines());
    return all;
}

void PortalPart::load()
{
    const auto settings = loadPortalSettings(m_context.files);
    for (std::size_t at = 0; at < m_fields.size(); ++at)
        m_fields[at]->setText(fromBytes(settings.user[at]));
    // The lists are never emptied first: after a discard the file's rows stand behind those on screen.
    for (const HubRow& hub : settings.hubs)
        m_hubs->append(hubRow(hub));
    if (m_hubs->rows().size() == fullHubList)
        m_hubTools->tool("NEW").setEnabled(false);
    for (const std::string& nick : settings.ignoreNicks)
        m_nicks->append(nickRow(nick));
    if (m_nicks->isEmpty()) {
        for (std::string& nick : defaultIgnoreNicks(m_context.files))
            m_nicks->append(nickRow(std::move(nick)));
    }
}

void PortalPart::save()
{
    savePortalSettings(m_context.files, shown());
}

PortalSettings PortalPart::shown() const
{
    PortalSettings settings;
    for (std::size_t at = 0; at < m_fields.size(); ++at)
        settings.user[at] = field(at);
    for (const CellRow& row : m_hubs->rows())
        settings.hubs.push_back({row.cells[0], row.cells[1], row.cells[2]});
    for (const CellRow& row : m_nicks->rows())
        settings.ignoreNicks.push_back(row.cells[1]);
    return settings;
}

void PortalPart::addHub()
{
    addRows(m_hubs, hubRequest("Add Hub"), [this](const auto& values) { takeHub(values); });
}

void PortalPart::takeHub(const std::vector<std::string>& values)
{
    m_hubs->append(hubRow({values[0], values[1], values[2]}));
    if (m_hubs->rows().size() == fullHubList)
        m_hubTools->tool("NEW").setEnabled(false);
    emit changed();
}

void PortalPart::pasteHubs()
{
    pasteRows(m_hubs, hubRequest("Add Hub"), [this](const auto& values) {
        if (!m_hubTools->tool("NEW").isEnabled())
            return "the list is full";
        takeHub(values);
        return "";
    });
}

/// What was edited goes into the last row, whichever was selected, and a full list gets its NEW button back.
void PortalPart::editHub()
{
    const int selected = m_hubs->currentRow();
    if (selected < 0)
        return;
    const auto& cells = m_hubs->rows()[static_cast<std::size_t>(selected)].cells;
    const auto answer = edited(m_hubs, hubRequest("Edit Hub"), {cells[0], cells[1], cells[2]});
    if (answer.gEditResult == EditResult::Ok) {
        CellRow last = m_hubs->rows().back();
        std::copy(answer.gEditValues.begin(), answer.gEditValues.end(), last.cells.begin());
        m_hubs->replace(static_cast<int>(m_hubs->rows().size()) - 1, std::move(last));
        emit changed();
    }
    m_hubTools->tool("NEW").setEnabled(true);
}

/// A full list keeps its NEW button dark after a deletion, until the form is opened again: the button asks
/// for two rows here, and not for fewer.
void PortalPart::deleteHub()
{
    const int selected = m_hubs->currentRow();
    if (selected < 0 || !confirm(m_hubs, "Delete Hub?", "Do you really want to delete this Hub?"))
        return;
    m_hubs->remove(selected);
    if (!m_hubs->isEmpty())
        m_hubs->select(0);
    if (m_hubs->rows().size() == fullHubList)
        m_hubTools->tool("NEW").setEnabled(true);
    emit changed();
}

/// The tick that changed tells whether to open or to leave; the row it works on is the selected one.
void PortalPart::followTick(int row)
{
    const int selected = m_hubs->currentRow();
    if (selected < 0)
        return;
    if (isChecked(static_cast<std::size_t>(row)))
        m_live->OpenLink(selected);
    else
        m_live->leaveHub(selected);
}

/// The links compare nicks with case, so one that is added here matches only a nick in lower case.
void PortalPart::addNick()
{
    addRows(m_nicks, nickRequest("Add Nick"), [this](const auto& values) { takeNick(values); });
}

void PortalPart::takeNick(const std::vector<std::string>& values)
{
    m_nicks->append(nickRow(codepage::lowered(values[0])));
    emit changed();
}

void PortalPart::pasteNicks()
{
    pasteRows(m_nicks, nickRequest("Add Nick"), [this](const auto& values) {
        takeNick(values);
        return "";
    });
}

/// Goes into the last row as well, and keeps its case.
void PortalPart::editNick()
{
    const int selected = m_nicks->currentRow();
    if (selected < 0)
        return;
    const auto& nick = m_nicks->rows()[static_cast<std::size_t>(selected)].cells[1];
    const auto answer = edited(m_nicks, nickRequest("Edit Nick"), {nick});
    if (answer.gEditResult != EditResult::Ok)
        return;
    m_nicks->replace(static_cast<int>(m_nicks->rows().size()) - 1, nickRow(answer.gEditValues[0]));
    emit changed();
}

void PortalPart::deleteNick()
{
    const std::vector<int> selected = m_nicks->selectedRows();
    if (selected.empty() || !confirm(m_nicks, "Delete Nick?", "Do you really want to delete this Nick?"))
        return;
    m_nicks->remove(selected);
    emit changed();
}

std::string PortalPart::field(std::size_t at) const
{
    return toBytes(m_fields[at]->text());
}

bool PortalPart::anyFieldEmpty() const
{
    return std::any_of(m_fields.begin(), m_fields.end(),
                       [](const QLineEdit* each) { return each->text().isEmpty(); });
}

std::string PortalPart::hub(std::size_t row, HubColumn column) const
{
    const auto& rows = m_hubs->rows();
    return row < rows.size() ? rows[row].cells[static_cast<std::size_t>(column)] : std::string();
}

std::size_t PortalPart::hubCount() const
{
    return m_hubs->rows().size();
}

bool PortalPart::isChecked(std::size_t row) const
{
    return row < m_hubs->rows().size() && m_hubs->rows()[row].checked;
}

void PortalPart::uncheck(std::size_t row)
{
    if (row >= m_hubs->rows().size())
        return;
    CellRow cells = m_hubs->rows()[row];
    cells.checked = false;
    m_hubs->replace(static_cast<int>(row), std::move(cells));
}

bool PortalPart::isIgnored(std::string_view nick) const
{
    if (!m_ignored) {
        m_ignored.emplace();
        for (const CellRow& row : m_nicks->rows())
            m_ignored->insert(row.cells[1]);
    }
    return m_ignored->count(std::string(nick)) > 0;
}

void PortalPart::tellMissingFields()
{
    notify(m_widget, "Mandatory Information Required", "Please fill in all text boxes", QMessageBox::Warning);
}

void PortalPart::tellOpenFailure(const SocketError& error)
{
    notify(m_widget, caption, QStringLiteral("The link can't be opened: ") + QString::fromUtf8(error.what()),
           QMessageBox::Warning);
}

void PortalPart::tellDatagramFailure(const SocketError& error)
{
    notify(m_widget, QString::number(error.number()),
           QStringLiteral("Error occured: \n") + QString::fromUtf8(error.what()), QMessageBox::Warning);
}

void PortalPart::yield()
{
    QCoreApplication::processEvents();
}

} // namespace quillfen
