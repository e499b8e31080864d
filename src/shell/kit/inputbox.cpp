#include "shell/kit/inputbox.h"

#include "shell/kit/codepagetext.h"

#include <QInputDialog>
#include <QLineEdit>

namespace quillfen {

std::string askText(QWidget* parent, const QString& title, const QString& prompt)
{
    QInputDialog box(parent);
    box.setWindowTitle(title);
    box.setLabelText(prompt);
    box.setInputMode(QInputDialog::TextInput);
    limitToOneLine(*box.findChild<QLineEdit*>());
    return box.exec() == QDialog::Accepted ? toBytes(box.textValue()) : std::string();
}

} // namespace quillfen
