#include "shell/window/mainwindow.h"

#include "settings/lines.h"
#include "settings/tablefile.h"
#include "shell/icons/icons.h"
#include "shell/kit/hourglass.h"
#include "shell/kit/messages.h"
#include "shell/kit/units.h"
#include "shell/window/aboutbox.h"
#include "shell/window/navigator.h"
#include "shell/window/navigatortable.h"
#include "shell/window/popupmenus.h"
#include "shell/window/toptoolbar.h"
#include "shell/window/windowmenu.h"
#include "shell/window/windowsdialog.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QUrl>

namespace quillfen {
namespace {

/// No routine writes this switch: the owner puts it into the file by hand.
bool isPortalOn(const SettingsFiles& files)
{
    return isOne(files.ReadTableValue(R"(General\Globals\Switches.tbl)", "bPortal"));
}

QAction* addItem(QMenu& menu, const QString& name, const QString& caption)
{
    auto* action = menu.addAction(caption);
    action->setObjectName(name);
    return action;
}

QMenu* addMenu(QMenuBar& bar, const QString& name, const QString& caption)
{
    auto* menu = bar.addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

} // namespace

MainWindow::MainWindow(const ProgramInfo& program, const FormContext& context, const FormCatalogue& forms)
    : m_program(program),
      m_context(context),
      m_area(new QMdiArea),
      m_windowMenu(new WindowMenu(this)),
      m_popUpMenus(new PopUpMenus([this] { return activeForm(); }, this))
{
    for (const FormMaker& maker : forms)
        m_makers.insert(maker.name, maker);
    m_context.popUpMenu = [this](const QString& name) { return popUpMenu(name); };
    setObjectName("frmContainer");
    setWindowTitle(program.product + ' ' + program.version);
    setMinimumSize(twips(11790, 9060));
    resize(1180, 780);

    const bool portalShown = isPortalOn(context.files);
    addToolbar(portalShown);
    m_navigator = new Navigator(portalShown);
    connect(m_navigator, &Navigator::chosen, this, [this] { OpenFunctionForm(QString()); });
    buildMenus();
    auto* search = new QAction(this);
    search->setShortcut(QKeySequence::Find);
    addAction(search);
    connect(search, &QAction::triggered, this, &MainWindow::findFunction);

    auto* splitter = new QSplitter;
    splitter->addWidget(m_navigator);
    splitter->addWidget(m_area);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 940});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    statusBar()->setObjectName("stsContainer");
    setWindowIcon(themedIcon("quillfen"));

    connect(m_popUpMenus, &PopUpMenus::routineMissing, this, [this](const QString& routine) {
        notify(this, m_program.product, "The active form has no " + routine + '.', QMessageBox::Critical);
    });
}

void MainWindow::addToolbar(bool portalShown)
{
    auto* toolbar = new TopToolbar(portalShown, this);
    addToolBar(toolbar);
    connect(toolbar, &TopToolbar::formChosen, this, &MainWindow::OpenFunctionForm);
    connect(toolbar, &TopToolbar::sideBarToggled, this, &MainWindow::ToggleSideBar);
    connect(toolbar, &TopToolbar::scriptsChosen, this, &MainWindow::openScriptsPage);
    connect(toolbar, &TopToolbar::donateChosen, this, &MainWindow::openDonationPage);
}

void MainWindow::buildMenus()
{
    auto* file = addMenu(*menuBar(), "mnuFile", "&File");
    auto* close = addItem(*file, "mnuFileClose", "&Close");
    close->setShortcut(QKeySequence::Quit);
    connect(close, &QAction::triggered, this, &MainWindow::close);

    auto* tools = addMenu(*menuBar(), "mnuTools", "&Tools");
    connect(addItem(*tools, "mnuToolsSideBar", "Show/Hide Functions &Sidebar"), &QAction::triggered, this,
            &MainWindow::ToggleSideBar);

    menuBar()->addMenu(m_windowMenu);
    connect(m_windowMenu, &WindowMenu::formChosen, this, &MainWindow::OpenFunctionForm);
    connect(m_windowMenu, &WindowMenu::showAllChosen, this, &MainWindow::showAllWindows);

    auto* help = addMenu(*menuBar(), "mnuHelp", "&Help");
    connect(addItem(*help, "mnuHelpVisit", "&Visit Morvaleth's Scripts"), &QAction::triggered, this,
            &MainWindow::openScriptsPage);
    connect(addItem(*help, "mnuHelpDonate", "Make A &Donation"), &QAction::triggered, this,
            &MainWindow::openDonationPage);
    connect(addItem(*help, "mnuHelpAbout", "&About"), &QAction::triggered, this,
            [this] { AboutBox(m_program, this).exec(); });
}

QMenu* MainWindow::popUpMenu(const QString& name) const
{
    return m_popUpMenus->menu(name);
}

void MainWindow::OpenFunctionForm(const QString& key)
{
    const Hourglass hourglass;
    const bool fromTree = key.isEmpty();
    const QString wanted = (fromTree ? m_navigator->selectedKey() : key).trimmed();
    EditorForm* form = formOf(wanted);
    if (form && !m_openWindows.contains(wanted) && !(fromTree && m_navigator->headingSelected()))
        m_openWindows.Add(wanted);
    m_windowMenu->RebuildWindowMenu(m_openWindows);
}

EditorForm* MainWindow::formOf(const QString& key)
{
    const QString name = formName(key);
    if (auto* open = subWindowOf(name)) {
        if (open->isMinimized())
            open->showNormal();
        m_area->setActiveSubWindow(open);
        return qobject_cast<EditorForm*>(open->widget());
    }
    const auto maker = m_makers.constFind(name);
    if (maker == m_makers.constEnd())
        return nullptr;
    EditorForm* form = maker->make(m_context);
    if (!sameCaption(form->caption(), captionOfKey(key)))
        form->setTag(captionOfKey(key)); // the registry could not find the form by its own caption
    showForm(form);
    return form;
}

QMdiSubWindow* MainWindow::subWindowOf(const QString& name) const
{
    for (auto* window : m_area->subWindowList()) {
        if (window->widget() && window->widget()->objectName() == name)
            return window;
    }
    return nullptr;
}

void MainWindow::showForm(EditorForm* form)
{
    form->open();
    auto* window = m_area->addSubWindow(form);
    window->setWindowIcon(themedIcon("quillfen"));
    window->setAttribute(Qt::WA_DeleteOnClose);
    connect(form, &EditorForm::closed, this,
            [this, form] { FindOpenWindow(form->tag().isEmpty() ? form->caption() : form->tag()); });
    const int caption =
        window->fontMetrics().horizontalAdvance(form->caption()) + twips(2400); // and its buttons
    window->resize(window->sizeHint()
                       .expandedTo({caption, 0})
                       .boundedTo(m_area->viewport()->size()) // what is more scrolls inside
                       .expandedTo(window->minimumSizeHint()));
    window->show();
}

void MainWindow::FindOpenWindow(const QString& caption)
{
    m_openWindows.removeCaption(caption);
    m_windowMenu->RebuildWindowMenu(m_openWindows);
}

EditorForm* MainWindow::activeForm() const
{
    auto* window = m_area->currentSubWindow();
    return window ? qobject_cast<EditorForm*>(window->widget()) : nullptr;
}

void MainWindow::ToggleSideBar()
{
    m_navigator->setVisible(m_navigator->isHidden());
}

void MainWindow::findFunction()
{
    m_navigator->show();
    m_navigator->find();
}

void MainWindow::showAllWindows()
{
    WindowsDialog dialog(m_openWindows, this);
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedKey().isEmpty())
        OpenFunctionForm(dialog.selectedKey());
}

void MainWindow::openWebPage(const QString& path)
{
    if (m_program.webBase.isEmpty() || !QDesktopServices::openUrl(QUrl(m_program.webBase + path)))
        notify(this, m_program.product, "The web page " + m_program.webBase + path + " can't be opened.",
               QMessageBox::Information);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    for (auto* window : m_area->subWindowList()) {
        if (!window->close()) {
            event->ignore();
            return;
        }
    }
    event->accept();
}

} // namespace quillfen
