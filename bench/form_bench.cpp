// The heaviest forms, through their real widgets: the kick grid, and a question file of 50,000 rows.
#include "functions/catalogue.h"
#include "functions/forms.h"
#include "functions/games/trivia.h"
#include "functions/security/kicks.h"
#include "settings/rebuild.h"
#include "shell/kit/listview.h"
#include "shell/window/mainwindow.h"
#include "support/hub.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

#include <benchmark/benchmark.h>
#include <memory>

namespace quillfen {
namespace {

/// A hub in memory with a built tree and a shown main window.
class Desk
{
public:
    explicit Desk(int profiles)
    {
        while (hub.profiles.count() < static_cast<std::size_t>(profiles))
            hub.profiles.add("Profile" + std::to_string(hub.profiles.count()));
        CheckSettingsRebuild(
            {hub.files, folderCatalogue(), "bench", [](const RebuildQuestion&) { return true; }}, 'P',
            hub.profiles);
        window = std::make_unique<MainWindow>(ProgramInfo{"bench"}, FormContext{hub.files, hub.profiles},
                                              formCatalogue());
        window->show();
    }

    EditorForm& open(const char* key)
    {
        window->OpenFunctionForm(key);
        QApplication::processEvents();
        return *qobject_cast<EditorForm*>(window->findChild<QMdiArea*>()->currentSubWindow()->widget());
    }

    void closeAll()
    {
        window->findChild<QMdiArea*>()->closeAllSubWindows();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    test::Hub hub;
    std::unique_ptr<MainWindow> window;
};

constexpr const char* gridKey = "Security~Kicks~Permissions";

void openGrid(benchmark::State& state)
{
    Desk desk(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        desk.open(gridKey);
        state.PauseTiming();
        desk.closeAll();
        state.ResumeTiming();
    }
}

void filterGrid(benchmark::State& state)
{
    Desk desk(static_cast<int>(state.range(0)));
    auto& form = desk.open(gridKey);
    auto* filter = form.findChild<QAction*>("COMMAND");
    auto* ban = filter->menu()->findChild<QAction*>("C*Ban");
    for (auto _ : state) {
        ban->trigger();
        QApplication::processEvents();
        filter->trigger(); // and back to all rows
        QApplication::processEvents();
    }
}

void toggleCell(benchmark::State& state)
{
    Desk desk(static_cast<int>(state.range(0)));
    auto& form = desk.open(gridKey);
    auto* list = form.findChild<ListView*>("lvwPermissions");
    list->select(list->model()->rowCount() - 1);
    auto* edit = form.findChild<QAction*>("EDIT");
    for (auto _ : state) {
        edit->trigger();
        QApplication::processEvents();
    }
    form.findChild<QAction*>("SAVE")->trigger(); // leaves the form clean
}

void saveGridForm(benchmark::State& state)
{
    Desk desk(static_cast<int>(state.range(0)));
    auto& form = desk.open(gridKey);
    auto* save = form.findChild<QAction*>("SAVE");
    for (auto _ : state) {
        save->setEnabled(true);
        save->trigger();
        QApplication::processEvents();
    }
}

void loadQuestions(benchmark::State& state)
{
    test::Hub hub{"Games", "Games/Trivia", "Games/Trivia/QuestionFiles"};
    std::string& bytes = hub.file("Games/Trivia/QuestionFiles/big.lst");
    for (int row = 0; row < state.range(0); ++row)
        bytes += "Category:Question number " + std::to_string(row) + "?*the answer is a word\r\n";
    for (auto _ : state)
        benchmark::DoNotOptimize(loadTriviaQuestions(hub.files, "big"));
}

BENCHMARK(openGrid)->Arg(5)->Arg(20)->Arg(64)->Unit(benchmark::kMillisecond);
BENCHMARK(filterGrid)->Arg(5)->Arg(20)->Arg(64)->Unit(benchmark::kMillisecond);
BENCHMARK(toggleCell)->Arg(5)->Arg(20)->Arg(64)->Unit(benchmark::kMillisecond);
BENCHMARK(saveGridForm)->Arg(5)->Arg(20)->Arg(64)->Unit(benchmark::kMillisecond);
BENCHMARK(loadQuestions)->Arg(50000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfen

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
