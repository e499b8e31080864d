#include "shell/kit/textfilepart.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/textedit.h"
#include "shell/kit/toolbars.h"

namespace quillfen {

TextFilePart::TextFilePart(const DeclaredText& text, const FormContext& context)
    : m_path(text.path),
      m_context(context),
      m_toolbar(new QToolBar)
{
    m_toolbar->setObjectName(fromBytes(text.toolbar));
    m_toolbar->setIconSize({16, 16});
    m_toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    int index = 0;
    AddEditButton(*m_toolbar, index);
    auto* action = button(*m_toolbar, "EDIT");
    action->setText(fromBytes(text.caption));
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
