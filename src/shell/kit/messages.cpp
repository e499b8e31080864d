#include "shell/kit/messages.h"

#include "declarations/listdeclaration.h"
#include "settings/filename.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/longtext.h"
#include "shell/kit/windowtitle.h"
#include "store/filestore.h"

#include <QDir>
#include <QFileInfo>

namespace quillfen {
namespace {

QString fileNamesOf(const std::vector<std::string>& paths)
{
    QStringList names;
    for (const std::string& path : paths)
        names.append(QFileInfo(QString::fromStdString(path)).fileName());
    return names.join(", ");
}

/// What a save that stopped half-way made of its files; empty where it changed none.
QString whatChanged(const StoreError& error)
{
    const auto* half = dynamic_cast<const HalfCommitted*>(&error);
    if (!half)
        return {};
    return " New already: " + fileNamesOf(half->changed()) +
           ". Still as before: " + fileNamesOf(half->left()) + '.';
}

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

std::optional<RowRefusal> nameRefusal(const std::string& title, std::string_view name,
                                      const std::string& fault)
{
    if (fault.empty())
        return {};
    return RowRefusal{title, std::string(name) + "\n\n" + fault};
}

bool tellIfRefused(QWidget* parent, const std::optional<RowRefusal>& refusal)
{
    if (refusal)
        notify(parent, *refusal);
    return refusal.has_value();
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

void notify(QWidget* parent, const RowRefusal& refusal)
{
    notify(parent, fromBytes(refusal.title), fromBytes(refusal.text), QMessageBox::Warning);
}

FailureWords saving(const QString& what)
{
    return {what + " couldn't be saved.", "Nothing that you typed is lost: mend it and save again."};
}

FailureWords making(const QString& file)
{
    return {file + " couldn't be made.", "It doesn't join the list: mend it and make it again."};
}

FailureWords deleting(const QString& file)
{
    return {file + " couldn't be deleted.", "It stays in the list: mend it and delete it again."};
}

bool attempt(QWidget* parent, const FailureWords& words, const std::function<void()>& write)
{
    try {
        write();
        return true;
    } catch (const StoreError& error) {
        tellFailure(parent, parent->window()->windowTitle(),
                    {words.failed, words.remedy + whatChanged(error)}, error);
        return false;
    }
}

void tellFailure(QWidget* parent, const QString& title, const FailureWords& words, const StoreError& error)
{
    const auto path = QDir::toNativeSeparators(QString::fromStdString(error.path()));
    const auto reason = QString::fromStdString(error.reason());
    notify(parent, title, words.failed + ' ' + path + ": " + reason + ". " + words.remedy,
           QMessageBox::Critical);
}

std::optional<RowRefusal> newFileRefusal(std::string_view name)
{
    return nameRefusal("Cannot create file", name, fileNameFault(name));
}

bool refuseNewFile(QWidget* parent, std::string_view name)
{
    return tellIfRefused(parent, newFileRefusal(name));
}

bool refuseListedFile(QWidget* parent, const QString& title, std::string_view name)
{
    return tellIfRefused(parent, nameRefusal(toBytes(title), name, leavingNameFault(name)));
}

} // namespace quillfen
