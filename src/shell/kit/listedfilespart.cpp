#include "shell/kit/listedfilespart.h"

#include "settings/codepage.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/inputbox.h"
#include "shell/kit/labels.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbarlist.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace quillfen {
namespace {

/// The extension of a chosen file goes, whatever it is.
constexpr int extensionSize = 4;

QWidget* below(QWidget* above, QWidget* names)
{
    if (!above)
        return names;
    auto* widget = new QWidget;
    auto* column = new QVBoxLayout(widget);
    column->setContentsMargins({});
    column->addWidget(above);
    column->addWidget(names, 1);
    return widget;
}

QWidget* sideBySide(QWidget* names, QWidget* rows)
{
    auto* splitter = new QSplitter;
    splitter->addWidget(names);
    splitter->addWidget(rows);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    return splitter;
}

} // namespace

ListedFilesPart::ListedFilesPart(ListedFiles files, const FormContext& context, RowListHooks hooks,
                                 QWidget* above)
    : m_files(std::move(files)),
      m_context(context),
      m_names(new RowList(fromBytes(m_files.names.list), texts(m_files.names.columns), m_files.names.ticks)),
      m_nameTools(new ToolbarList(m_names,
                                  {fromBytes(m_files.names.toolbar),
                                   fromBytes(m_files.names.columns.front()),
                                   {},
                                   fromBytes(m_files.names.menu)},
                                  {BuildFileListToolbar}, context)),
      m_rows(new RowListPart(m_files.rows, context, std::move(hooks))),
      m_widget(sideBySide(below(above, m_nameTools), m_rows->widget()))
{
    m_rows->setParent(this);
    m_rows->list().setSavedByItself();
    m_names->setSelectionMode(QAbstractItemView::SingleSelection); // it tells which file is meant
    m_nameTools->connectButtons(this, {{"NEW", &ListedFilesPart::askName},
                                       {"OPEN", &ListedFilesPart::chooseFile},
                                       {"DELETE", &ListedFilesPart::removeName},
                                       {"EDIT", &ListedFilesPart::openSelected}});
    m_rows->tools().connectButtons(
        this, {{"SAVE", &ListedFilesPart::saveFile}, {"CLOSE", &ListedFilesPart::closeFile}});
    connect(&rowTool("SAVE"), &QAction::changed, this, &FormPart::openFileChanged);
    connect(&m_rows->list(), &RowList::countChanged, this, &FormPart::openFileChanged);
    connect(m_rows->list().model(), &QAbstractItemModel::dataChanged, this, &FormPart::openFileChanged);
}

void ListedFilesPart::load()
{
    m_names->setRows(m_files.names.load(m_context.files, m_context.profiles));
}

void ListedFilesPart::save()
{
    m_files.names.save(m_context.files, m_context.profiles, m_names->rows());
}

bool ListedFilesPart::hasUnsavedFile() const
{
    return !m_rows->rows().empty() && rowTool("SAVE").isEnabled();
}

RoutineTable ListedFilesPart::routines()
{
    RoutineTable all = m_rows->routines();
    all.insert(m_nameTools->routines());
    return all;
}

QAction& ListedFilesPart::rowTool(const QString& key) const
{
    return m_rows->tools().tool(key);
}

std::string ListedFilesPart::selectedName() const
{
    const int row = m_names->currentRow();
    return row < 0 ? std::string() : m_names->rows()[static_cast<std::size_t>(row)].cells[0];
}

bool ListedFilesPart::isListed(const std::string& name) const
{
    const auto& rows = m_names->rows();
    return std::any_of(rows.begin(), rows.end(), [wanted = codepage::lowered(name)](const CellRow& row) {
        return codepage::lowered(row.cells[0]) == wanted;
    });
}

void ListedFilesPart::tellRefusal(const QString& title, const std::string& name, const std::string& text)
{
    notify(m_widget, title, fromBytes(name + text), QMessageBox::Warning);
}

void ListedFilesPart::addName(const std::string& name)
{
    m_names->append({{name}});
    emit changed();
}

void ListedFilesPart::askName()
{
    const RowDialog& words = m_files.names.dialog;
    const std::string name = askText(m_widget, fromBytes(words.addTitle), fromBytes(words.labels.front()));
    if (!name.empty())
        startFile(name);
}

/// The file is not copied: it is the owner's task that it lies in the folder.
void ListedFilesPart::chooseFile()
{
    // The filter's own words stand in front of its patterns, which don't show.
    const QString filter = fromBytes(m_files.filter + " (" + m_files.patterns + ")");
    const QString path = QFileDialog::getOpenFileName(
        m_widget, fromBytes(m_files.chooseTitle),
        QString::fromStdString(m_context.files.paths().inSettings(m_files.folder)), filter, nullptr,
        QFileDialog::HideNameFilterDetails);
    if (path.size() <= extensionSize)
        return;
    QString file = QFileInfo(path).fileName();
    file.chop(extensionSize);
    const std::string name = toBytes(file);
    if (fromBytes(name) != file) {
        notify(m_widget, fromBytes(m_files.refusesAdding),
               file + " has characters that the hub script can't read", QMessageBox::Warning);
        return;
    }
    if (mayJoin(name))
        addName(name);
}

void ListedFilesPart::removeName()
{
    const std::string name = selectedName();
    if (mustStay(name) || m_names->currentRow() < 0 || !asksToGo(name))
        return;
    m_names->remove(m_names->currentRow());
    followGone(name);
}

void ListedFilesPart::openSelected()
{
    const std::string name = selectedName();
    if (mayOpen() && m_names->currentRow() >= 0 && !refuseListedFile(m_widget, "Cannot open file", name))
        openFile(name);
}

} // namespace quillfen
