// Takes pictures of the program in a hub's scripts folder: of a walk through it as the screen shows it, or of
// every form and every dialog by itself, in a light or a dark palette.
#include "app/start.h"
#include "functions/catalogue.h"
#include "shell/kit/editdialog.h"
#include "shell/kit/formadvice.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/textedit.h"
#include "shell/window/aboutbox.h"
#include "shell/window/windowsdialog.h"
#include "store/diskstore.h"
#include "support/boxes.h"
#include "support/navigatornames.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QStyleFactory>
#include <QTest>
#include <QToolBar>
#include <QTreeView>

#include <cstdio>

namespace {

using quillfen::EditorForm;

class Tour
{
public:
    explicit Tour(QString folder) : m_folder(std::move(folder)) { QDir().mkpath(m_folder); }

    /// A picture of a whole window as the screen shows it, with what lies over it.
    void picture(QWidget& window, const QString& name)
    {
        QTest::qWait(150);
        const QRect frame(window.mapToGlobal(QPoint()), window.size());
        store(window.screen()->grabWindow(0, frame.x(), frame.y(), frame.width(), frame.height()), name);
    }

    /// A picture of a window by itself, also where it is larger than the screen.
    void portrait(QWidget& window, const QString& name)
    {
        QTest::qWait(20); // scroll bars come and go
        store(window.grab(), name);
    }

    /// A portrait of a dialog, which then goes.
    void portraitOf(QDialog&& dialog)
    {
        dialog.show();
        portrait(dialog, "dialog-" + dialog.objectName());
    }

    bool complete() const { return m_complete; }
    void miss(const QString& what)
    {
        std::fprintf(stderr, "no picture: %s\n", qPrintable(what));
        m_complete = false;
    }

private:
    void store(const QPixmap& shot, const QString& name)
    {
        const QString file = m_folder + '/' + name + QStringLiteral(".png");
        if (shot.save(file))
            std::printf("%s\n", qPrintable(file));
        else
            miss(file);
    }

    QString m_folder;
    bool m_complete = true;
};

EditorForm* formOf(QWidget& window, const char* name)
{
    return window.findChild<EditorForm*>(name);
}

void trigger(QWidget& parent, const char* toolbar, const char* key)
{
    parent.findChild<QToolBar*>(toolbar)->findChild<QAction*>(key)->trigger();
}

void walk(quillfen::MainWindow& window, Tour& tour)
{
    tour.picture(window, "02-main-window");

    window.OpenFunctionForm("General~Settings");
    tour.picture(window, "03-general-settings");
    auto* name = formOf(window, "frmGeneralGeneral")->findChild<QLineEdit*>("txtTextBox(1)");
    name->setFocus();
    name->selectAll();
    QTest::keyClicks(name, name->text() == "Quillfen" ? "Hub menu" : "Quillfen");
    tour.picture(window, "04-general-settings-dirty");
    trigger(*formOf(window, "frmGeneralGeneral"), "tlbFormToolbar", "SAVE");

    window.OpenFunctionForm("General~Switches");
    auto* list = formOf(window, "frmGeneralSwitches")->findChild<QTreeView*>("lvwSwitches");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualRect(list->model()->index(5, 0)).center());
    tour.picture(window, "05-switches-with-help");
    window.OpenFunctionForm("General~EnabledRightClicks");
    tour.picture(window, "06-enabled-right-clicks");

    for (const char* key : {"General~Settings", "General~Switches", "General~EnabledRightClicks"})
        window.OpenFunctionForm(key);
    window.findChild<QMdiArea*>()->tileSubWindows();
    tour.picture(window, "07-three-forms");
    quillfen::test::withModal(
        [&] { trigger(*formOf(window, "frmGeneralGeneral"), "tlbFormToolbar", "RESTORE"); },
        [&](QWidget& box) {
            tour.picture(window, "08-restore-question");
            box.close();
        });
    quillfen::test::withModal([&] { window.findChild<QAction*>("mnuHelpAbout")->trigger(); },
                              [&](QWidget& box) {
                                  tour.picture(box, "09-about");
                                  box.close();
                              });
}

void closeForms(QMdiArea& area)
{
    area.closeAllSubWindows();
    QCoreApplication::sendPostedEvents(nullptr,
                                       QEvent::DeferredDelete); // no event loop runs that would do it
}

/// Every form that the catalogue makes, each opened by its key.
void showForms(quillfen::MainWindow& window, Tour& tour)
{
    auto* area = window.findChild<QMdiArea*>();
    for (const QString& key : quillfen::formKeys()) {
        closeForms(*area);
        window.OpenFunctionForm(key);
        auto* form = area->currentSubWindow();
        if (form && form->widget()->objectName() == quillfen::formName(key))
            tour.portrait(*form, "form-" + QString(key).replace('~', '-'));
        else
            tour.miss(key);
    }
}

void showEditDialogs(QWidget& parent, Tour& tour)
{
    for (int form = 0; form <= static_cast<int>(quillfen::EditForm::FourCombos); ++form) {
        const auto kind = static_cast<quillfen::EditForm>(form);
        quillfen::EditRequest request{kind,
                                      "Add Row",
                                      quillfen::EditResult::Add,
                                      quillfen::habitualAddMode(kind),
                                      {"Bad Nick", "Minimum Share", "Action", "Profile"}};
        request.values = {"Warn", "60", "Warn", "Warn"};
        request.entries.assign(4, {"Warn", "60"});
        tour.portraitOf(quillfen::EditDialog(request, &parent));
    }
}

void showDialogs(quillfen::MainWindow& window, const quillfen::SettingsFiles& files, Tour& tour)
{
    closeForms(*window.findChild<QMdiArea*>());
    for (const char* key : {"General~Switches", "General~Settings"})
        window.OpenFunctionForm(key);
    showEditDialogs(window, tour);
    tour.portraitOf(quillfen::TextEditDialog(files, R"(Security\Kick\KickAscii.asc)",
                                             quillfen::TextEditDialog::Mode::Edit, &window));
    tour.portraitOf(quillfen::WindowsDialog(window.openWindows(), &window));
    tour.portraitOf(quillfen::AboutBox({QUILLFEN_VERSION}, &window));
    quillfen::test::withModal(
        [&] { trigger(*formOf(window, "frmGeneralGeneral"), "tlbFormToolbar", "RESTORE"); },
        [&](QWidget& box) {
            tour.portrait(box, "dialog-question");
            box.close();
        });
}

/// What the find box finds, in place of the tree.
void showFound(quillfen::MainWindow& window, Tour& tour)
{
    auto* box = window.findChild<QLineEdit*>("txtFind");
    box->setText("kick ban time");
    tour.portrait(*box->parentWidget(), "found");
    box->clear();
}

/// A list behind its filter, and a grid that is scrolled, with rows chosen in both.
void showLists(quillfen::MainWindow& window, Tour& tour)
{
    auto* area = window.findChild<QMdiArea*>();
    closeForms(*area);
    for (const char* key : {"Security~Kicks~Permissions", "General~Switches"})
        window.OpenFunctionForm(key);
    area->tileSubWindows();
    auto* switches = formOf(window, "frmGeneralSwitches")->findChild<quillfen::ListView*>("lvwSwitches");
    switches->openFilter();
    QTest::keyClicks(switches->findChild<QLineEdit*>("txtFilter"), "block");
    auto* grid =
        formOf(window, "frmSecurityKickPermissions")->findChild<quillfen::ListView*>("lvwPermissions");
    grid->scrollTo(grid->model()->index(grid->model()->rowCount() / 2, 0), QTreeView::PositionAtTop);
    grid->select(grid->model()->rowCount() / 2 + 2);
    tour.portrait(window, "lists");
}

/// What differs from the files. The form stays dirty.
void showChanges(quillfen::MainWindow& window, Tour& tour)
{
    auto* area = window.findChild<QMdiArea*>();
    closeForms(*area);
    for (const char* key : {"Security~BadNickBlocker", "Security~Kicks~Settings"})
        window.OpenFunctionForm(key);
    area->tileSubWindows();
    auto* kicks = formOf(window, "frmSecurityKickSettings");
    kicks->findChild<QLineEdit*>("txtUpDown(1)")->setText("7");
    kicks->findChild<QCheckBox*>("chkCheckBox(2)")->click();
    auto* nicks =
        formOf(window, "frmSecurityBadNickBlocker")->findChild<quillfen::RowList*>("lvwBadNickList");
    nicks->append({{"advert"}});
    emit nicks->tickChanged(0); // a change by hand
    for (const auto* form : area->subWindowList())
        qobject_cast<EditorForm*>(form->widget())->advice()->look();
    tour.portrait(window, "changes");
    quillfen::test::answering(QMessageBox::Ok, [&] { closeForms(*area); });
}

/// Three forms with something wrong in each. They stay dirty, so this comes last.
void showAdvice(quillfen::MainWindow& window, Tour& tour)
{
    auto* area = window.findChild<QMdiArea*>();
    closeForms(*area);
    for (const char* key :
         {"Security~BadNickBlocker", "Security~Kicks~Settings", "Communication~WelcomeInfo~Settings"})
        window.OpenFunctionForm(key);
    area->tileSubWindows();
    auto* kicks = formOf(window, "frmSecurityKickSettings");
    kicks->findChild<QLineEdit*>("txtUpDown(1)")->setText("51");
    kicks->findChild<QLineEdit*>("txtUpDown(5)")->setText("1260");
    formOf(window, "frmCommunicationWelcomeInfoSettings")
        ->findChild<QLineEdit*>("txtTextBox(1)")
        ->setText("The \"Best\" Network");
    auto* nicks =
        formOf(window, "frmSecurityBadNickBlocker")->findChild<quillfen::RowList*>("lvwBadNickList");
    nicks->append({{"advert\\"}});
    emit nicks->tickChanged(0); // a change by hand
    for (const auto* form : area->subWindowList())
        qobject_cast<EditorForm*>(form->widget())->advice()->look();
    tour.portrait(window, "advice");
}

QPalette paletteNamed(const QString& name)
{
    if (name == "light")
        return QStyleFactory::create("fusion")->standardPalette();
    QPalette dark(QColor(0x3b, 0x3d, 0x40), QColor(0x2b, 0x2d, 0x30));
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    dark.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
    dark.setColor(QPalette::Link, QColor(0x6c, 0xa8, 0xff));
    return dark;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    const QString palette = arguments.value(3);
    if (arguments.size() < 3 || !QStringList{"", "light", "dark"}.contains(palette)) {
        std::fprintf(stderr, "usage: quillfen_tour SCRIPTS_FOLDER PICTURE_FOLDER [light|dark]\n");
        return 2;
    }
    const QString scripts = QDir(arguments.at(1)).absolutePath();
    Tour tour(arguments.at(2));
    if (!palette.isEmpty())
        QApplication::setPalette(paletteNamed(palette));
    quillfen::DiskStore disk;
    quillfen::Program program(disk, scripts, {QUILLFEN_VERSION});
    std::optional<int> exitCode;
    quillfen::test::withModal([&] { exitCode = program.start(); },
                              [&](QWidget& box) {
                                  tour.picture(box, "01-version-question");
                                  qobject_cast<QMessageBox*>(&box)->button(QMessageBox::Ok)->click();
                              });
    if (exitCode)
        return *exitCode;
    quillfen::MainWindow& window = program.window();
    window.resize(1180, 780); // also where the screen, which the pictures don't need, is smaller
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        tour.miss("the main window doesn't show");
    trigger(window, "tlbSidebar", "EXPAND");
    if (palette.isEmpty()) {
        walk(window, tour);
    } else {
        tour.portrait(window, "main-window");
        showFound(window, tour);
        showForms(window, tour);
        showDialogs(window, {disk, quillfen::SettingsPaths(scripts.toStdString())}, tour);
        showLists(window, tour);
        showChanges(window, tour);
        showAdvice(window, tour);
    }
    return tour.complete() ? 0 : 1;
}
