#include "functions/communication/rotatingmessagesform.h"

#include "functions/communication/rotatingmessages.h"
#include "settings/filename.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/editorform.h"
#include "shell/kit/labels.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/textedit.h"
#include "shell/kit/toolbars.h"

#include <QInputDialog>

#include <algorithm>

namespace quillfen {
namespace {

/// The files of a folder, ticked while they take part. Texts are written and deleted at once, apart from the
/// form's save.
class RotatingFilesPart : public FormPart
{
public:
    RotatingFilesPart(const RotatingMessages& messages, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override { m_list->setRows(loadRotatingNames(m_messages, m_context.files)); }
    void restore() override {} ///< the files are no setting with a default
    void save() override { saveRotatingNames(m_messages, m_list->rows(), m_context.files); }
    RoutineTable routines() override;

private:
    std::string askName();
    bool isGoodName(const QString& typed);
    void add();
    void edit();
    void removeSelected();
    void followRows();
    std::string selectedFile() const;

    const RotatingMessages& m_messages;
    FormContext m_context;
    RowList* m_list;
    QToolBar* m_toolbar;
    QWidget* m_widget;
};

RotatingFilesPart::RotatingFilesPart(const RotatingMessages& messages, const FormContext& context)
    : m_messages(messages),
      m_context(context),
      m_list(new RowList("lvwFiles", {"Filename"}, true)),
      m_toolbar(new QToolBar),
      m_widget(listWithToolbar(QString(), m_toolbar, m_list))
{
    m_list->setAccessibleName("Files");
    m_toolbar->setObjectName("tlbFiles");
    m_toolbar->setIconSize({16, 16});
    int index = 0;
    BuildListToolbar(*m_toolbar, index);
    connectButton(*m_toolbar, "NEW", this, &RotatingFilesPart::add);
    connectButton(*m_toolbar, "EDIT", this, &RotatingFilesPart::edit);
    connectButton(*m_toolbar, "DELETE", this, &RotatingFilesPart::removeSelected);
    connect(m_list, &RowList::editAsked, this, &RotatingFilesPart::edit);
    connect(m_list, &RowList::deleteAsked, this, &RotatingFilesPart::removeSelected);
    connect(m_list, &RowList::tickChanged, this, &FormPart::changed);
    connect(m_list, &RowList::countChanged, this, &RotatingFilesPart::followRows);
    connect(m_list, &RowList::menuAsked, this,
            [this](const QPoint& at) { m_context.showMenu("mnuFirst", at); });
    followRows();
}

RoutineTable RotatingFilesPart::routines()
{
    return {{routineName("mnuFirst", "Add"), [this] { add(); }},
            {routineName("mnuFirst", "Delete"), [this] { removeSelected(); }},
            {routineName("mnuFirst", "Edit"), [this] { edit(); }}};
}

bool RotatingFilesPart::isGoodName(const QString& typed)
{
    const std::string name = toBytes(typed);
    if (fromBytes(name) != typed) {
        notify(m_widget, "Cannot create file", typed + " has characters that the hub script can't read",
               QMessageBox::Warning);
        return false;
    }
    if (refuseFileName(m_widget, name))
        return false;
    // Only the typed name is lowered: it is refused for a row "hello", and not for a row "Hello".
    const auto& rows = m_list->rows();
    if (std::any_of(rows.begin(), rows.end(),
                    [&](const CellRow& row) { return row.cells[0] == lowered(name); })) {
        notify(m_widget, "Error", "File already exists", QMessageBox::Warning);
        return false;
    }
    return true;
}

std::string RotatingFilesPart::askName()
{
    for (;;) {
        // The private messages' form asks in the words of the main messages' too.
        const QString typed =
            QInputDialog::getText(m_widget, "Enter filename", "Enter filename for new Rotating Main Message");
        if (typed.isEmpty())
            return {};
        if (isGoodName(typed))
            return toBytes(typed);
    }
}

void RotatingFilesPart::add()
{
    const std::string name = askName();
    if (name.empty() || !editTextFile(m_widget->window(), m_context.files, rotatingTextFile(m_messages, name),
                                      TextEditDialog::Mode::New))
        return;
    m_list->append({{name}});
    m_list->select(static_cast<int>(m_list->rows().size()) - 1);
}

std::string RotatingFilesPart::selectedFile() const
{
    const auto row = static_cast<std::size_t>(m_list->currentRow());
    return rotatingTextFile(m_messages, m_list->rows().at(row).cells[0]);
}

void RotatingFilesPart::edit()
{
    if (m_list->currentRow() >= 0)
        editTextFile(m_widget->window(), m_context.files, selectedFile());
}

void RotatingFilesPart::removeSelected()
{
    if (m_list->currentRow() < 0 ||
        !confirm(m_widget, "Delete File?", "Do you really want to delete this File?") ||
        !attempt(m_widget, [this] { m_context.files.removeFile(selectedFile()); }))
        return;
    m_list->remove(m_list->currentRow());
    emit changed();
}

void RotatingFilesPart::followRows()
{
    for (const char* key : {"DELETE", "EDIT"})
        button(*m_toolbar, key)->setEnabled(!m_list->isEmpty());
}

EditorForm* makeForm(const FormDescription& description, const RotatingMessages& messages,
                     const FormContext& context)
{
    auto* form = new EditorForm(description);
    form->add(new TableFilePart(messages.settings, context));
    form->add(new RotatingFilesPart(messages, context));
    return form;
}

} // namespace

EditorForm* makeRotatingMainMessageForm(const FormContext& context)
{
    return makeForm({"frmCommunicationRotatingMainMessage", "Communication ~ RotatingMainMessage"},
                    rotatingMainMessages(), context);
}

EditorForm* makeRotatingPrivateMessageForm(const FormContext& context)
{
    return makeForm({"frmCommunicationRotatingPrivateMessage", "Communication ~ RotatingPrivateMessage"},
                    rotatingPrivateMessages(), context);
}

} // namespace quillfen
