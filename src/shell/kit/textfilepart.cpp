#include "shell/kit/textfilepart.h"

#include "shell/kit/textedit.h"
#include "shell/kit/toolbars.h"

namespace quillfen {

TextFilePart::TextFilePart(const QString& toolbar, const QString& caption, std::string path,
                           const FormContext& context)
    : m_path(std::move(path)),
      m_context(context),
      m_toolbar(smallToolbar(toolbar, {AddEditButton}))
{
    m_toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    auto* action = button(*m_toolbar, "EDIT");
    action->setText(caption);
    action->setToolTip("Edit"); // the text beside the icon tells what is edited
    connect(action, &QAction::triggered, this, &TextFilePart::edit);
}

QWidget* TextFilePart::widget()
{
    return m_toolbar;
}

void TextFilePart::edit()
{
    editTextFile(m_toolbar->window(), m_context.files, m_path);
}

} // namespace quillfen
