#include "app/start.h"
#include "settings/diskstore.h"

#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    quillfen::DiskStore disk;
    quillfen::Program program(disk, QCoreApplication::applicationDirPath(),
                              {QUILLFEN_VERSION, QStringLiteral(QUILLFEN_WEB_BASE)});
    if (const auto exitCode = program.start())
        return *exitCode;
    program.window().show();
    return QApplication::exec();
}
