#include "app/hubdata.h"
#include "app/start.h"
#include "check/checkcommand.h"
#include "check/programcall.h"
#include "store/diskstore.h"
#ifdef _WIN32
#include "app/darkdesktop.h"
#endif

#include <QApplication>
#include <QTimer>

#include <iostream>

int main(int argc, char** argv)
{
    quillfen::DiskStore disk;
    if (argc > 1 && std::string_view(argv[1]) == "--check") { // needs no display
        auto call = quillfen::programCall(argc, argv);
        call.arguments.erase(call.arguments.begin());
        return quillfen::runCheck(disk, call.folder, call.arguments, std::cout, std::cerr);
    }
#ifdef _WIN32
    const bool isDark = quillfen::askForDarkWindows();
#endif
    const QApplication application(argc, argv);
#ifdef _WIN32
    if (isDark)
        quillfen::mendDarkColours();
#endif
    QCoreApplication::setApplicationName("quillfen"); // whatever the owner calls the file
    const QString folder = QCoreApplication::applicationDirPath();
    quillfen::HubData data(disk, folder);
    quillfen::ProgramInfo info{QUILLFEN_VERSION, QStringLiteral(QUILLFEN_WEB_BASE)};
    info.newsBase = QStringLiteral(QUILLFEN_NEWS_BASE);
    info.updatesBase = QStringLiteral(QUILLFEN_UPDATES_BASE);
    info.guideFolder = folder + "/quillfen-docs";
    quillfen::Program program(disk, folder, std::move(info));
    program.use(data);
    const auto exitCode = program.start();
    if (exitCode) {
        data.sweep();
        return *exitCode;
    }
    program.window().show();
    QTimer::singleShot(std::chrono::seconds(1), [&data] { data.sweep(); }); // the window comes first
    return QApplication::exec();
}
