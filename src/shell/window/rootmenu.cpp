#include "shell/window/rootmenu.h"

#include "settings/tablefile.h"
#include "shell/kit/editorform.h"
#include "shell/kit/messages.h"
#include "shell/window/versionsdialog.h"
#include "store/draft.h"

#include <QDesktopServices>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace quillfen {

RootMenu::RootMenu(const FormContext& context, std::function<QList<EditorForm*>()> openForms, QWidget* parent)
    : QMenu(parent),
      m_context(context),
      m_openForms(std::move(openForms)),
      m_versions(addAction("&Earlier versions...", this, &RootMenu::showVersions)),
      m_backUp(addAction("&Back up now", this, &RootMenu::backUp))
{
    setObjectName("mnuRoot");
    m_versions->setObjectName("mnuRootVersions");
    m_backUp->setObjectName("mnuRootBackUp");
    addAction("&Open the settings folder", this, &RootMenu::openFolder)->setObjectName("mnuRootFolder");
    m_check = addAction("&Check the settings", this, &RootMenu::showFindings);
    m_check->setObjectName("mnuRootCheck");
    for (auto* action : {m_versions, m_backUp, m_check})
        action->setEnabled(false);
}

void RootMenu::offerVersions(History& history)
{
    m_history = &history;
    for (auto* action : {m_versions, m_backUp})
        action->setEnabled(true);
}

void RootMenu::offerCheck(SettingsCheck check)
{
    m_settingsCheck = std::move(check);
    m_check->setEnabled(true);
}

/// The list stays beside the forms that its rows lead to, so that it is gone through row by row.
void RootMenu::showFindings()
{
    if (m_findings) {
        m_findings->look();
    } else {
        m_findings = new CheckDialog(m_settingsCheck, parentWidget());
        m_findings->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_findings, &CheckDialog::chosen, this, &RootMenu::findingChosen);
    }
    m_findings->show();
    m_findings->raise();
    m_findings->activateWindow();
}

QList<EditorForm*> RootMenu::formsOf(const std::vector<std::string>& paths) const
{
    QList<EditorForm*> forms;
    for (auto* form : m_openForms()) {
        const auto isShown = [form](const std::string& path) { return form->files().count(path) > 0; };
        if (std::any_of(paths.begin(), paths.end(), isShown))
            forms.append(form);
    }
    return forms;
}

void RootMenu::showVersions()
{
    const OpenForms forms = {[this](const std::vector<std::string>& paths) {
                                 QStringList captions;
                                 for (const auto* form : formsOf(paths)) {
                                     if (form->isDirty())
                                         captions.append(form->caption());
                                 }
                                 return captions;
                             },
                             [this](const std::vector<std::string>& paths) {
                                 for (auto* form : formsOf(paths)) {
                                     if (!form->isDirty())
                                         form->loadAnew();
                                 }
                             }};
    VersionsDialog(*m_history, m_context.files.store(), forms, parentWidget()).exec();
}

void RootMenu::backUp()
{
    const FailureWords words = {"The settings could not be backed up.", "They are as they were."};
    if (attempt(parentWidget(), words, [this] { m_history->backUp("Backup"); }))
        notify(parentWidget(), "Back up", "All settings as they stand now are among the earlier versions.",
               QMessageBox::Information);
}

void RootMenu::openFolder()
{
    const QString folder = QString::fromStdString(m_context.files.paths().settingsRoot());
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

} // namespace quillfen
