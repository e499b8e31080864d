#pragma once

#include "shell/kit/formpart.h"
#include "shell/window/checkdialog.h"

#include <QMenu>
#include <QPointer>

#include <functional>
#include <string>
#include <vector>

namespace quillfen {

class EditorForm;
class History;

/// The right-click menu of the navigator's root row: what concerns all settings at once.
class RootMenu : public QMenu
{
    Q_OBJECT

public:
    /// Looks the open forms up when it needs them.
    RootMenu(const FormContext& context, std::function<QList<EditorForm*>()> openForms, QWidget* parent);

    /// Shows the menu at a place of the screen.
    void popUp(const QPoint& at) { popup(at); }

    /// From now on offers the earlier versions of the settings.
    void offerVersions(History& history);

    /// From now on offers the check of all settings.
    void offerCheck(SettingsCheck check);

signals:
    /// In the list of findings one was chosen, whose file the form of this node shows.
    void findingChosen(const QString& node, const Finding& finding);

private:
    void showVersions();
    void showFindings();
    void backUp();
    void openFolder();
    QList<EditorForm*> formsOf(const std::vector<std::string>& paths) const;

    FormContext m_context;
    std::function<QList<EditorForm*>()> m_openForms;
    History* m_history = nullptr;
    QAction* m_versions;
    QAction* m_backUp;
    SettingsCheck m_settingsCheck;
    QPointer<CheckDialog> m_findings;
    QAction* m_check;
};

} // namespace quillfen
