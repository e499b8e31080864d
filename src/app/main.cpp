#include "app/start.h"
#include "store/diskstore.h"

#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    quillfen::DiskStore disk;
    quillfen::ProgramInfo info{QUILLFEN_VERSION, QStringLiteral(QUILLFEN_WEB_BASE)};
    info.newsBase = QStringLiteral(QUILLFEN_NEWS_BASE);
    info.updatesBase = QStringLiteral(QUILLFEN_UPDATES_BASE);
    quillfen::Program program(disk, QCoreApplication::applicationDirPath(), std::move(info));
    if (const auto exitCode = program.start())
        return *exitCode;
    program.window().show();
    return QApplication::exec();
}
