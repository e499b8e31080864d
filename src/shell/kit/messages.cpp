#include "shell/kit/messages.h"

#include "settings/filestore.h"

#include <QDir>

namespace quillfen {
namespace {

QMessageBox::StandardButton show(QWidget* parent, const QString& title, const QString& text,
                                 QMessageBox::Icon icon, QMessageBox::StandardButtons buttons)
{
    QMessageBox box(icon, title, text, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Ok);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

bool confirm(QWidget* parent, const QString& title, const QString& text, QMessageBox::Icon icon)
{
    return show(parent, title, text, icon, QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

void notify(QWidget* parent, const QString& title, const QString& text, QMessageBox::Icon icon)
{
    show(parent, title, text, icon, QMessageBox::Ok);
}

void tellFailure(QWidget* parent, const QString& title, const StoreError& error)
{
    const auto path = QDir::toNativeSeparators(QString::fromStdString(error.path()));
    notify(parent, title, path + QStringLiteral("\n\n") + QString::fromStdString(error.reason()),
           QMessageBox::Critical);
}

} // namespace quillfen
