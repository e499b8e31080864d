// Walks through the program in a hub's scripts folder and leaves a picture of each stop.
#include "app/start.h"
#include "settings/diskstore.h"
#include "support/boxes.h"

#include <QAction>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
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
        const QPixmap shot =
            window.screen()->grabWindow(0, frame.x(), frame.y(), frame.width(), frame.height());
        const QString file = m_folder + '/' + name + QStringLiteral(".png");
        if (!shot.save(file))
            std::fprintf(stderr, "no picture: %s\n", qPrintable(file));
        else
            std::printf("%s\n", qPrintable(file));
    }

private:
    QString m_folder;
};

EditorForm* formOf(QWidget& window, const char* name)
{
    return window.findChild<EditorForm*>(name);
}

void trigger(QWidget& parent, const char* toolbar, const char* key)
{
    parent.findChild<QToolBar*>(toolbar)->findChild<QAction*>(key)->trigger();
}

/// A picture of one form alone, and of what its list's EDIT shows.
void visit(quillfen::MainWindow& window, Tour& tour, const QString& key)
{
    auto* area = window.findChild<QMdiArea*>();
    area->closeAllSubWindows();
    window.OpenFunctionForm(key);
    tour.picture(*area->currentSubWindow(), "form-" + QString(key).replace('~', '-'));
}

void walk(quillfen::MainWindow& window, Tour& tour)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        std::fprintf(stderr, "the main window doesn't show\n");
    trigger(window, "tlbSidebar", "EXPAND");
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
    for (const char* key : {"General~Bots", "General~Commands", "General~News", "Communication~Portal",
                            "Communication~TopicChanger", "Games~Trivia~Settings", "Games~Trivia~Questions",
                            "Security~Kicks~Settings", "Security~Kicks~Permissions"})
        visit(window, tour, key);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "usage: quillfen_tour SCRIPTS_FOLDER PICTURE_FOLDER\n");
        return 2;
    }
    Tour tour(arguments.at(2));
    quillfen::DiskStore disk;
    quillfen::Program program(disk, QDir(arguments.at(1)).absolutePath(), {QUILLFEN_VERSION});
    std::optional<int> exitCode;
    quillfen::test::withModal([&] { exitCode = program.start(); },
                              [&](QWidget& box) {
                                  tour.picture(box, "01-version-question");
                                  qobject_cast<QMessageBox*>(&box)->button(QMessageBox::Ok)->click();
                              });
    if (exitCode)
        return *exitCode;
    walk(program.window(), tour);
    return 0;
}
