// The program's whole start in the scripts folder that is given, up to its first painted window. A number
// behind it asks for so many rounds in which every form is opened and closed.
#include "app/hubdata.h"
#include "app/start.h"
#include "firstpaint.h"
#include "formopening.h"
#include "store/diskstore.h"

#include <QTimer>

#include <cstdlib>

namespace {

using namespace quillfen;

void openAll(MainWindow& window, const QStringList& keys)
{
    for (const QString& key : keys) {
        const auto begin = std::chrono::steady_clock::now();
        bench::openForm(window, key);
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
        std::printf("opened %.6f %s\n", time.count(), qPrintable(key));
        bench::closeForms(window);
    }
    std::printf("heap %.3f\n", bench::heapKiB());
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc < 2)
        return 2;
    DiskStore disk;
    const auto folder = QString::fromLocal8Bit(argv[1]);
    HubData data(disk, folder, folder + "/../data");
    Program program(disk, folder, {QUILLFEN_VERSION});
    program.use(data);
    if (const auto exitCode = program.start())
        return *exitCode;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 0;
    const bench::FirstPaint ending(program.window(), [&] {
        for (int round = 0; round < rounds; ++round)
            openAll(program.window(), quillfen::bench::formKeys());
        bench::endProgram();
    });
    program.window().show();
    QTimer::singleShot(std::chrono::seconds(1), [&data] { data.sweep(); });
    return QApplication::exec();
}
