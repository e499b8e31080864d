// The program's whole start in the scripts folder that is given, up to its first painted window.
#include "app/start.h"
#include "firstpaint.h"
#include "settings/diskstore.h"

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc < 2)
        return 2;
    quillfen::DiskStore disk;
    quillfen::Program program(disk, QString::fromLocal8Bit(argv[1]), {QUILLFEN_VERSION});
    if (const auto exitCode = program.start())
        return *exitCode;
    const quillfen::bench::FirstPaint ending(program.window());
    program.window().show();
    return QApplication::exec();
}
