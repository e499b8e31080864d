#include "shell/kit/messages.h"

#include "settings/filename.h"
#include "settings/filestore.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/longtext.h"
#include "shell/kit/windowtitle.h"

#include <QDir>

namespace quillfen {
namespace {

QMessageBox::StandardButton show(QWidget* parent, const QString& title, const QString& text,
                                 QMessageBox::Icon icon, QMessageBox::StandardButtons buttons,
                                 QMessageBox::StandardButton preset = QMessageBox::Ok)
{
    QMessageBox box(icon, windowTitleOf(shownPart(title)), {}, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    if (isLong(text))
        letTextScroll(box);
    box.setDefaultButton(preset);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

bool confirm(QWidget* parent, const QString& title, const QString& text, QMessageBox::Icon icon,
             QMessageBox::StandardButton preset)
{
    return show(parent, title, text, icon, QMessageBox::Ok | QMessageBox::Cancel, preset) == QMessageBox::Ok;
}

bool askYesNo(QWidget* parent, const QString& title, const QString& text)
{
    return show(parent, title, text, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
                QMessageBox::Yes) == QMessageBox::Yes;
}

void notify(QWidget* parent, const QString& title, const QString& text, QMessageBox::Icon icon)
{
    show(parent, title, text, icon, QMessageBox::Ok);
}

bool attempt(QWidget* parent, const std::function<void()>& write)
{
    try {
        write();
        return true;
    } catch (const StoreError& error) {
        tellFailure(parent, parent->window()->windowTitle(), error);
        return false;
    }
}

bool refuseFileName(QWidget* parent, std::string_view name)
{
    const std::string fault = fileNameFault(name);
    if (fault.empty())
        return false;
    notify(parent, "Cannot create file", fromBytes(name) + "\n\n" + fromBytes(fault), QMessageBox::Warning);
    return true;
}

void tellFailure(QWidget* parent, const QString& title, const StoreError& error)
{
    const auto path = QDir::toNativeSeparators(QString::fromStdString(error.path()));
    notify(parent, title, path + QStringLiteral("\n\n") + QString::fromStdString(error.reason()),
           QMessageBox::Critical);
}

} // namespace quillfen
