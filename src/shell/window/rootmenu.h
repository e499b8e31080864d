#pragma once

#include "shell/kit/formpart.h"

#include <QMenu>

#include <string>
#include <vector>

class QMdiArea;

namespace quillfen {

class EditorForm;
class History;

/// The right-click menu of the navigator's root row: what concerns all settings at once.
class RootMenu : public QMenu
{
    Q_OBJECT

public:
    /// The open forms are those of the area.
    RootMenu(const FormContext& context, const QMdiArea& area, QWidget* parent);

    /// Shows the menu at a place of the screen.
    void popUp(const QPoint& at) { popup(at); }

    /// From now on offers the earlier versions of the settings.
    void offerVersions(History& history);

private:
    void showVersions();
    void backUp();
    void openFolder();
    QList<EditorForm*> formsOf(const std::vector<std::string>& paths) const;

    FormContext m_context;
    const QMdiArea& m_area;
    History* m_history = nullptr;
    QAction* m_versions;
    QAction* m_backUp;
};

} // namespace quillfen
