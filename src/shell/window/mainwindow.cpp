#include "shell/window/mainwindow.h"

#include "declarations/oddfiles.h"
#include "settings/lines.h"
#include "settings/tablefile.h"
#include "shell/icons/icons.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/formadvice.h"
#include "shell/kit/hourglass.h"
#include "shell/kit/listview.h"
#include "shell/kit/messages.h"
#include "shell/kit/toolbars.h"
#include "shell/kit/units.h"
#include "shell/window/aboutbox.h"
#include "shell/window/changedicon.h"
#include "shell/window/filewatch.h"
#include "shell/window/guide.h"
#include "shell/window/navigator.h"
#include "shell/window/popupmenus.h"
#include "shell/window/rootmenu.h"
#include "shell/window/toptoolbar.h"
#include "shell/window/windowmenu.h"
#include "shell/window/windowsdialog.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillfen {
namespace {

/// No routine writes this switch: the owner puts it into the file by hand.
bool isPortalOn(const SettingsFiles& files)
{
    return isOne(files.ReadTableValue(switchesPath, "bPortal"));
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

/// What the window opens with: no larger than the screen's free area, its title bar included.
QSize startSize(const QWidget& window)
{
    const int titleBar = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QSize free = window.screen()->availableSize();
    return QSize(1180, 780).boundedTo({free.width(), free.height() - titleBar});
}

EditorForm* formIn(const QMdiSubWindow& window)
{
    return qobject_cast<EditorForm*>(window.widget());
}

/// Moves a scroll bar so far that a stretch of what it moves is seen, and rather its beginning than its end.
void scrollTo(QScrollBar& bar, int first, int last, int extent)
{
    bar.setValue(bar.value() + std::min(first, std::max(0, last - extent + 1)));
}

void bringIntoSight(const QMdiSubWindow& window, QMdiArea& area)
{
    const QRect place = window.geometry();
    const QSize sight = area.viewport()->size();
    scrollTo(*area.horizontalScrollBar(), place.left(), place.right(), sight.width());
    scrollTo(*area.verticalScrollBar(), place.top(), place.bottom(), sight.height());
}

/// The control of a pane that had the focus last, or else its first one.
QWidget* entryOf(QWidget& pane)
{
    const auto takesFocus = [&pane](const QWidget* control) {
        return control && control != &pane && pane.isAncestorOf(control) && control->isVisible() &&
               control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0;
    };
    if (takesFocus(pane.focusWidget()))
        return pane.focusWidget();
    auto* control = pane.nextInFocusChain();
    while (control != &pane && !takesFocus(control))
        control = control->nextInFocusChain();
    return control == &pane ? nullptr : control;
}

} // namespace

MainWindow::MainWindow(const ProgramInfo& program, const FormContext& context, const std::vector<Node>& nodes,
                       const FormCatalogue& forms, PartMakers makers)
    : m_program(program),
      m_table(nodes),
      m_context(context),
      m_makers(std::move(makers)),
      m_area(new QMdiArea),
      m_windowMenu(new WindowMenu(this)),
      m_popUpMenus(new PopUpMenus([this] { return activeForm(); }, this)),
      m_rootMenu(new RootMenu(
          context, [this] { return openForms(); }, this)),
      m_fileWatch(new FileWatch(this))
{
    for (const FormDeclaration& form : forms)
        m_forms.insert(fromBytes(form.form.name), form);
    m_context.popUpMenu = [this](const QString& name) { return popUpMenu(name); };
    setObjectName("frmContainer");
    setWindowTitle(program.product + ' ' + program.version);
    setMinimumSize(twips(11790, 9060));
    resize(startSize(*this));
    setContextMenuPolicy(Qt::NoContextMenu); // Qt's own would hide the toolbar for good

    const bool portalShown = isPortalOn(context.files);
    addToolbar(portalShown);
    m_finder.setPortalShown(portalShown);
    m_navigator = new Navigator(m_table, m_finder, portalShown);
    connect(m_navigator, &Navigator::found, this, &MainWindow::openFound);
    connect(m_rootMenu, &RootMenu::findingChosen, this, &MainWindow::goToFinding);
    connect(m_navigator, &Navigator::rootMenuAsked, m_rootMenu, &RootMenu::popUp);
    connect(m_navigator, &Navigator::chosen, this, [this] { OpenFunctionForm(QString()); });
    buildMenus();
    addKeys();

    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(m_area, &QMdiArea::subWindowActivated, this, &MainWindow::formActivated);
    showHowToBegin();
    auto* splitter = new QSplitter;
    splitter->addWidget(m_navigator);
    splitter->addWidget(m_area);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 940});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    statusBar()->setObjectName("stsContainer");
    setWindowIcon(themedIcon("quillfen"));
    letKeysReachButtons(*this);
    m_navigator->find();

    followStore();
    connect(m_fileWatch, &FileWatch::changed, this, [this] {
        for (auto* form : openForms())
            form->lookAtFiles();
    });

    connect(m_popUpMenus, &PopUpMenus::routineMissing, this, [this](const QString& routine) {
        notify(this, m_program.product, "The active form has no " + routine + '.', QMessageBox::Critical);
    });
}

MainWindow::~MainWindow()
{
    m_context.files.store().hear({});
    m_area->disconnect(this); // as it goes with its forms, they still activate each other
}

void MainWindow::offerVersions(History& history)
{
    m_rootMenu->offerVersions(history);
}

void MainWindow::offerCheck(SettingsCheck check)
{
    m_rootMenu->offerCheck(std::move(check));
}

void MainWindow::goToFinding(const QString& node, const Finding& finding)
{
    OpenFunctionForm(node);
    activateWindow();
    if (auto* form = activeForm(); form && form->advice())
        form->advice()->goTo(finding);
}

void MainWindow::goToRow(const QString& node, const QString& list, const QString& row)
{
    OpenFunctionForm(node);
    auto* view = activeForm()->findChild<ListView*>(list);
    if (!view)
        return;
    const auto found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, row, 1,
                                            Qt::MatchExactly | Qt::MatchCaseSensitive);
    activeForm()->goTo(*view, found.isEmpty() ? -1 : found.constFirst().row());
}

QList<EditorForm*> MainWindow::openForms() const
{
    QList<EditorForm*> forms;
    for (const auto* window : m_area->subWindowList()) {
        if (auto* form = qobject_cast<EditorForm*>(window->widget()))
            forms.append(form);
    }
    return forms;
}

void MainWindow::followFiles()
{
    std::set<std::string> files;
    for (const auto* form : openForms()) {
        for (const auto& [path, mark] : form->files())
            files.insert(path);
    }
    m_fileWatch->follow(files);
}

void MainWindow::showHowToBegin()
{
    m_howToBegin =
        new QLabel("Choose a function in the tree to open its form,\nor press Ctrl+F and type a word of "
                   "what you look for.");
    m_howToBegin->setObjectName("lblHowToBegin");
    m_howToBegin->setTextFormat(Qt::PlainText);
    m_howToBegin->setAlignment(Qt::AlignCenter);
    m_howToBegin->setWordWrap(true);
    QPalette colours = palette(); // as the area's own, it stays when the desktop's changes
    QColor grey = colours.color(QPalette::WindowText);
    grey.setAlphaF(0.75F);
    colours.setColor(QPalette::WindowText, grey);
    m_howToBegin->setPalette(colours);
    auto* layout = new QVBoxLayout(m_area->viewport());
    layout->addWidget(m_howToBegin);
}

/// What is written outside of a form's save, a text or a deletion, is the active form's doing.
void MainWindow::followStore()
{
    StoreListener listener;
    listener.cause = [this] {
        const auto* form = writingForm();
        return Cause{form ? form->caption().toStdString() : m_program.product.toStdString()};
    };
    listener.versionKept = [this](const std::string& fault) {
        if (auto* form = writingForm())
            form->tellVersionFault(QString::fromStdString(fault));
    };
    m_context.files.store().hear(std::move(listener));
}

void MainWindow::addToolbar(bool portalShown)
{
    auto* toolbar = new TopToolbar(m_table, portalShown, this);
    m_toolbar = toolbar;
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
    if (form)
        m_navigator->noteOpened(m_table.keyOfForm(form->objectName()));
    m_windowMenu->RebuildWindowMenu(m_openWindows);
}

/// A text that has an editor of its own is opened by a button, which is as far as we go.
void MainWindow::openFound(const QString& key, const QString& control, int row)
{
    OpenFunctionForm(key);
    auto* form = activeForm();
    if (!form)
        return;
    if (auto* entry = entryOf(*form))
        entry->setFocus(Qt::OtherFocusReason);
    if (control.isEmpty())
        return;
    if (const auto* toolbar = form->findChild<QToolBar*>(control))
        form->goTo(*toolbar->widgetForAction(toolbar->actions().constFirst()), -1);
    else
        form->goTo(control, row);
}

EditorForm* MainWindow::formOf(const QString& key)
{
    const QString name = m_table.formName(key);
    if (auto* open = subWindowOf(name)) {
        bringForward(*open);
        return formIn(*open);
    }
    const auto declared = m_forms.constFind(name);
    if (declared == m_forms.constEnd())
        return nullptr;
    EditorForm* form = makeForm(*declared, m_makers, m_context).release(); // its window will own it
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
    auto* before = m_area->currentSubWindow();
    const bool maximised = before ? before->isMaximized() : m_places.wasMaximised(form->objectName());
    form->open();
    if (before && maximised)
        before->showNormal(); // else Qt hands its state on to the new window before that has got its size
    delete m_howToBegin;
    delete m_area->viewport()->layout();
    auto* window = m_area->addSubWindow(form);
    connect(form, &EditorForm::loaded, this, &MainWindow::followFiles);
    connect(form, &EditorForm::guideAsked, this, [this](const QString& name) {
        openGuide(m_program, guidePage(m_table, m_table.keyOfForm(name)), this);
    });
    if (form->advice())
        connect(form->advice(), &FormAdvice::elsewhereAsked, this, &MainWindow::goToRow);
    followFiles();
    window->setWindowIcon(themedIcon("quillfen"));
    connect(form, &EditorForm::dirtyChanged, this, [this, form] { showChanged(*form, form->isDirty()); });
    window->setAttribute(Qt::WA_DeleteOnClose);
    connect(form, &EditorForm::closed, this, [this, form] {
        showChanged(*form, false);
        FindOpenWindow(form->tag().isEmpty() ? form->caption() : form->tag());
    });
    const int caption =
        window->fontMetrics().horizontalAdvance(form->caption()) + twips(2400); // and its buttons
    window->resize(window->sizeHint()
                       .expandedTo({caption, 0})
                       .boundedTo(m_area->viewport()->size()) // what is more scrolls inside
                       .expandedTo(window->minimumSizeHint()));
    window->show();
    m_places.putBack(*window);
    m_places.follow(*window);
    if (maximised)
        window->showMaximized();
    bringIntoSight(*window, *m_area);
}

void MainWindow::showChanged(const EditorForm& form, bool isChanged)
{
    const QIcon icon = themedIcon("quillfen");
    const QString key = m_table.keyOfForm(form.objectName());
    form.parentWidget()->setWindowIcon(isChanged ? withChangedDot(icon) : icon);
    m_navigator->markChanged(key, isChanged);
    m_windowMenu->markChanged(key, isChanged);
}

void MainWindow::bringForward(QMdiSubWindow& window)
{
    if (window.isMinimized())
        window.showNormal();
    m_area->setActiveSubWindow(&window);
    bringIntoSight(window, *m_area);
    m_navigator->follow(m_table.keyOfForm(window.widget()->objectName()));
}

void MainWindow::formActivated(QMdiSubWindow* window)
{
    if (!window || !window->widget() || window == m_followed)
        return; // only the main window lost or got back the focus
    m_followed = window;
    m_navigator->follow(m_table.keyOfForm(window->widget()->objectName()));
    if (QApplication::mouseButtons() == Qt::NoButton) // what is being clicked must not move away
        bringIntoSight(*window, *m_area);
}

void MainWindow::FindOpenWindow(const QString& caption)
{
    m_openWindows.removeCaption(caption);
    m_windowMenu->RebuildWindowMenu(m_openWindows);
}

EditorForm* MainWindow::activeForm() const
{
    const auto* window = m_area->currentSubWindow();
    return window ? formIn(*window) : nullptr;
}

void MainWindow::ToggleSideBar()
{
    m_navigator->setVisible(m_navigator->isHidden());
}

void MainWindow::addKeys()
{
    const auto add = [this](const QList<QKeySequence>& keys, const auto& pressed) {
        auto* action = new QAction(this);
        action->setShortcuts(keys);
        addAction(action);
        connect(action, &QAction::triggered, this, pressed);
    };
    add(QKeySequence::keyBindings(QKeySequence::Find), [this] { findFunction(); });
    // Qt's own goes there when Ctrl is let go, and tells of it by a frame that other forms hide.
    add(QKeySequence::keyBindings(QKeySequence::NextChild) + QList<QKeySequence>{Qt::CTRL | Qt::Key_PageDown},
        [this] { m_area->activateNextSubWindow(); });
    add(QKeySequence::keyBindings(QKeySequence::PreviousChild) +
            QList<QKeySequence>{Qt::CTRL | Qt::Key_PageUp},
        [this] { m_area->activatePreviousSubWindow(); });
    add({Qt::CTRL | Qt::SHIFT | Qt::Key_S}, [this] { saveAll(); });
    add({Qt::Key_F6}, [this] { goToPane(1); });
    add({Qt::SHIFT | Qt::Key_F6}, [this] { goToPane(-1); });
}

/// Each form tells what it has to tell, and what one couldn't save keeps no other from it.
void MainWindow::saveAll()
{
    EditorForm* unsaved = nullptr;
    for (auto* form : openForms()) {
        if (!form->isDirty())
            continue;
        const QScopedValueRollback saved(m_saved, form);
        form->save();
        if (form->isDirty() && !unsaved)
            unsaved = form;
    }
    if (unsaved)
        bringForward(*subWindowOf(unsaved->objectName()));
}

void MainWindow::goToPane(int step)
{
    QWidgetList panes = {m_toolbar, m_navigator, m_area->currentSubWindow()};
    panes.removeIf([](QWidget* pane) { return !pane || !entryOf(*pane); });
    const auto* focused = QApplication::focusWidget();
    const auto here = std::ranges::find_if(
        panes, [focused](const QWidget* pane) { return focused && pane->isAncestorOf(focused); });
    const auto place = here == panes.end() ? 0 : here - panes.begin() + step + panes.size();
    entryOf(*panes.at(place % panes.size()))->setFocus(Qt::ShortcutFocusReason);
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
        if (formIn(*window)->isDirty())
            bringForward(*window); // it is about to ask
        if (!window->close()) {
            event->ignore();
            return;
        }
    }
    event->accept();
}

} // namespace quillfen
