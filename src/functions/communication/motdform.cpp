#include "functions/communication/motdform.h"

#include "functions/communication/motd.h"
#include "shell/kit/labels.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/textedit.h"
#include "shell/kit/toolbars.h"

namespace quillfen {
namespace {

/// The messages by profile. Their texts are saved by the text editor, apart from the form's save.
class MotdPart : public FormPart
{
public:
    explicit MotdPart(const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override { m_list->setRows(loadMotds(m_context.files, m_context.profiles)); }
    void restore() override {} ///< the form has no RESTORE
    void save() override { saveMotds(m_context.files, m_list->rows()); }

private:
    void toggle();
    void amend();

    FormContext m_context;
    RowList* m_list;
    QToolBar* m_toolbar;
    QWidget* m_widget;
};

MotdPart::MotdPart(const FormContext& context)
    : m_context(context),
      m_list(new RowList("lvwMOTD", {"Profile Active", "Send To"}, true)),
      m_toolbar(new QToolBar),
      m_widget(listWithToolbar(QString(), m_toolbar, m_list))
{
    m_list->setAccessibleName("Messages Of The Day");
    m_toolbar->setObjectName("tlbMOTD");
    m_toolbar->setIconSize({16, 16});
    int index = 0;
    AddEditButton(*m_toolbar, index);
    AddAmendButton(*m_toolbar, index);
    connectButton(*m_toolbar, "EDIT", this, &MotdPart::toggle);
    connectButton(*m_toolbar, "AMEND", this, &MotdPart::amend);
    connect(m_list, &RowList::editAsked, this, &MotdPart::toggle);
    connect(m_list, &RowList::tickChanged, this, &FormPart::changed);
}

void MotdPart::toggle()
{
    const int at = m_list->currentRow();
    if (at < 0)
        return;
    CellRow row = m_list->rows()[static_cast<std::size_t>(at)];
    row.cells[1] = row.cells[1] == sentToMain ? sentByPm : sentToMain;
    m_list->replace(at, std::move(row));
    emit changed();
}

void MotdPart::amend()
{
    const int at = m_list->currentRow();
    if (at >= 0)
        editTextFile(m_widget->window(), m_context.files,
                     motdTextFile(static_cast<std::size_t>(at), m_context.profiles));
}

} // namespace

std::unique_ptr<FormPart> makeMotdPart(const FormContext& context)
{
    return std::make_unique<MotdPart>(context);
}

} // namespace quillfen
