#pragma once

#include "shell/kit/declaredforms.h"
#include "shell/window/finder.h"
#include "shell/window/formplaces.h"
#include "shell/window/navigatortable.h"
#include "shell/window/openwindows.h"
#include "shell/window/programinfo.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>

class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QToolBar;

namespace quillfen {

struct Finding;
struct SettingsCheck;
class FileWatch;
class History;
class Navigator;
class PopUpMenus;
class RootMenu;
class WindowMenu;

/// The multiple-document main window: navigator, top toolbar, menus, the registry of open windows and the
/// pop-up menus that child forms borrow.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Builds toolbars and navigator from the settings tree as it stands now; the profiles may be filled
    /// later, but before the first form opens.
    MainWindow(const ProgramInfo& program, const FormContext& context, const std::vector<Node>& nodes,
               const FormCatalogue& forms, PartMakers makers);
    ~MainWindow() override;

    /// Opens or brings forward the form of a navigator key; an empty key means the tree's selected node. A
    /// key without a form opens nothing.
    void OpenFunctionForm(const QString& key);

    /// From now on offers the earlier versions of the settings.
    void offerVersions(History& history);

    /// From now on offers the check of all settings.
    void offerCheck(SettingsCheck check);

    const COpenWindows& openWindows() const { return m_openWindows; }

    /// The borrowed right-click menu of a name.
    QMenu* popUpMenu(const QString& name) const;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenus();
    void followStore();
    void followFiles();
    void showHowToBegin();
    QList<EditorForm*> openForms() const;
    void addToolbar(bool portalShown);
    void showChanged(const EditorForm& form, bool isChanged);
    void goToFinding(const QString& node, const Finding& finding);
    void goToRow(const QString& node, const QString& list, const QString& row);
    EditorForm* formOf(const QString& key);
    void openFound(const QString& key, const QString& control, int row);
    QMdiSubWindow* subWindowOf(const QString& name) const;
    void showForm(EditorForm* form);
    void bringForward(QMdiSubWindow& window);
    void formActivated(QMdiSubWindow* window);
    void addKeys();
    void goToPane(int step);
    void saveAll();
    void FindOpenWindow(const QString& caption);
    void ToggleSideBar();
    void findFunction();
    void showAllWindows();
    void openScriptsPage() { openWebPage("scripts/"); }
    void openDonationPage() { openWebPage("scripts/donate/" + m_program.word + '/'); }
    void openWebPage(const QString& path);
    EditorForm* activeForm() const;
    EditorForm* writingForm() const { return m_saved ? m_saved : activeForm(); }

    ProgramInfo m_program;
    NavigatorTable m_table;
    FormContext m_context;
    QHash<QString, FormDeclaration> m_forms;
    Finder m_finder{m_table, m_forms, m_context};
    PartMakers m_makers;
    COpenWindows m_openWindows;
    Navigator* m_navigator;
    QMdiArea* m_area;
    QPointer<QLabel> m_howToBegin; ///< in the empty area, until the first form opens
    FormPlaces m_places;
    EditorForm* m_saved = nullptr; ///< the one of all that is being saved
    QToolBar* m_toolbar = nullptr;
    QPointer<QMdiSubWindow> m_followed; ///< the form that the tree has followed last
    WindowMenu* m_windowMenu;
    PopUpMenus* m_popUpMenus;
    RootMenu* m_rootMenu;
    FileWatch* m_fileWatch;
};

} // namespace quillfen
