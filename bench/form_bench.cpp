// The forms through their real widgets, in the main window over a tree on the disk: the opening of each, the
// heaviest grid's and the heaviest list's work, and the longest news.
#include "figures.h"
#include "formopening.h"
#include "functions/games/trivia.h"
#include "hubfolder.h"
#include "news/news.h"
#include "shell/kit/formadvice.h"
#include "shell/kit/listview.h"
#include "shell/window/versionsdialog.h"

#include <QAction>
#include <QMenu>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <memory>

namespace quillfen::bench {
namespace {

/// A hub with a built tree and a shown main window.
class Desk
{
public:
    explicit Desk(int profiles) : hub(static_cast<std::size_t>(profiles))
    {
        hub.start();
        window =
            std::make_unique<MainWindow>(ProgramInfo{QUILLFEN_VERSION}, FormContext{hub.files, hub.profiles},
                                         functionNodes(), formCatalogue(), partMakers());
        window->show();
        QApplication::processEvents();
    }

    HubFolder hub;
    std::unique_ptr<MainWindow> window;
};

void openEach(benchmark::State& state, Desk& desk, const QString& key)
{
    for (auto _ : state)
        state.SetIterationTime(secondsOf([&] { openForm(*desk.window, key); }));
    closeForms(*desk.window);
}

/// What a form says of the settings that it would save, looked at when the keys rest.
void advise(benchmark::State& state, Desk& desk, const QString& key)
{
    const EditorForm& form = openForm(*desk.window, key);
    for (auto _ : state)
        state.SetIterationTime(secondsOf([&] { form.advice()->look(); }));
    closeForms(*desk.window);
}

const QString gridKey = QStringLiteral("Security~Kicks~Permissions");

void filterGrid(benchmark::State& state, Desk& desk)
{
    const EditorForm& form = openForm(*desk.window, gridKey);
    auto* filter = form.findChild<QAction*>("COMMAND");
    auto* ban = filter->menu()->findChild<QAction*>("C*Ban");
    const auto thereAndBack = [&] {
        ban->trigger();
        QApplication::processEvents();
        filter->trigger();
        QApplication::processEvents();
    };
    for (auto _ : state)
        state.SetIterationTime(secondsOf(thereAndBack));
    closeForms(*desk.window);
}

void toggleAndSave(benchmark::State& state, Desk& desk, bool timesToggle)
{
    const EditorForm& form = openForm(*desk.window, gridKey);
    auto* list = form.findChild<ListView*>("lvwPermissions");
    list->select(list->model()->rowCount() - 1);
    QApplication::processEvents();
    const auto press = [&](const char* button) {
        return secondsOf([&] {
            form.findChild<QAction*>(button)->trigger();
            QApplication::processEvents();
        });
    };
    for (auto _ : state) {
        const double toggling = press("EDIT");
        const double saving = press("SAVE"); // leaves the form clean, so that it closes without a question
        state.SetIterationTime(timesToggle ? toggling : saving);
    }
    closeForms(*desk.window);
}

void loadQuestions(benchmark::State& state, Desk& desk)
{
    std::string bytes;
    for (int row = 0; row < 50'000; ++row)
        bytes += "Category:Question number " + std::to_string(row) + "?*the answer is a word\r\n";
    desk.hub.files.WriteSettingsFile(R"(Games\Trivia\QuestionFiles\big.lst)", bytes);
    for (auto _ : state) {
        const auto load = [&] { benchmark::DoNotOptimize(loadTriviaQuestions(desk.hub.files, "big")); };
        state.SetIterationTime(secondsOf(load));
    }
    desk.hub.files.removeFile(R"(Games\Trivia\QuestionFiles\big.lst)");
}

/// An archive of one article whose headline and story are a mebibyte each, in the form that shows it.
EditorForm& openNews(Desk& desk)
{
    const std::string endless(std::size_t{1} << 20U, 'x');
    std::filesystem::create_directories(desk.hub.folder() / "scripts" / "Morvaleth's Scripts" / "News");
    saveNews(desk.hub.files, {{"today", endless, endless, "star", "1"}});
    auto& form = openForm(*desk.window, QStringLiteral("General~News"));
    form.findChild<ListView*>("lvwNews")->select(0);
    return form;
}

void showArticle(benchmark::State& state, Desk& desk)
{
    auto* edit = openNews(desk).findChild<QAction*>("EDIT");
    QTimer closing; // runs when the box has come up and was painted
    QObject::connect(&closing, &QTimer::timeout, &closing, [] {
        QWidget* box = QApplication::activeModalWidget();
        if (!box || !box->isVisible())
            return;
        box->grab();
        box->close();
    });
    for (auto _ : state) {
        closing.start(0);
        state.SetIterationTime(secondsOf([&] { edit->trigger(); }));
        closing.stop();
    }
    closeForms(*desk.window);
}

void resizeNews(benchmark::State& state, Desk& desk)
{
    QWidget* form = openNews(desk).parentWidget();
    for (auto _ : state) {
        state.SetIterationTime(secondsOf([&] {
            form->resize(form->width() + (form->width() % 2 == 0 ? 1 : -1), form->height());
            form->grab();
        }));
    }
    closeForms(*desk.window);
}

/// The window of earlier versions with as many entries as are kept, of which the newest is shown.
void showVersions(benchmark::State& state, Desk& desk)
{
    for (unsigned save = 0; save < VersionStore::entryLimit; ++save)
        desk.hub.files.WriteSettingsFile(R"(Games\SlotMachine\SlotMachineSettings.tbl)",
                                         std::to_string(save));
    for (auto _ : state) {
        state.SetIterationTime(secondsOf([&] {
            VersionsDialog dialog(desk.hub.history(), desk.hub.files.store(), {});
            dialog.show();
            QApplication::processEvents();
        }));
    }
}

constexpr int repetitions = 15;

std::string opening(int profiles, const QString& key)
{
    return "open/" + std::to_string(profiles) + '/' + key.toStdString();
}

std::string advising(int profiles, const QString& key)
{
    return "advise/" + std::to_string(profiles) + '/' + key.toStdString();
}

void registerAll(int profiles, Desk& desk, const QStringList& keys)
{
    const auto add = [&desk](const std::string& name, auto work) {
        repeated(benchmark::RegisterBenchmark(name.c_str(),
                                              [&desk, work](benchmark::State& state) { work(state, desk); }),
                 repetitions);
    };
    for (const QString& key : keys)
        add(opening(profiles, key),
            [key](benchmark::State& state, Desk& where) { openEach(state, where, key); });
    for (const QString& key : keys)
        add(advising(profiles, key),
            [key](benchmark::State& state, Desk& where) { advise(state, where, key); });
    const std::string count = '/' + std::to_string(profiles);
    add("filter" + count, filterGrid);
    add("toggle" + count, [](benchmark::State& state, Desk& where) { toggleAndSave(state, where, true); });
    add("save" + count, [](benchmark::State& state, Desk& where) { toggleAndSave(state, where, false); });
    add("questions" + count, loadQuestions);
    add("article" + count, showArticle);
    add("news" + count, resizeNews);
    add("versions" + count, showVersions);
}

void printOpenings(const Figures& figures, int profiles, double worstAllowed, const QStringList& keys)
{
    std::vector<std::pair<double, QString>> times;
    for (const QString& key : keys) {
        if (const auto* medians = figures.of(opening(profiles, key)))
            times.emplace_back(medians->milliseconds, key);
    }
    if (times.empty())
        return;
    std::sort(times.begin(), times.end());
    const std::string where = "opening a form, " + std::to_string(profiles) + " profiles: ";
    printTime(where + "median of " + std::to_string(times.size()) + " forms", times[times.size() / 2].first,
              profiles == 5 ? std::optional(10.0) : std::nullopt);
    printTime(where + "worst (" + captionOfKey(times.back().second).toStdString() + ")", times.back().first,
              worstAllowed);
}

void printAdvising(const Figures& figures, int profiles, double allowed, const QStringList& keys)
{
    std::pair<double, QString> worst;
    for (const QString& key : keys) {
        if (const auto* medians = figures.of(advising(profiles, key)))
            worst = std::max(worst, {medians->milliseconds, key});
    }
    if (!worst.second.isEmpty())
        printTime("advice in a form, " + std::to_string(profiles) + " profiles: worst (" +
                      captionOfKey(worst.second).toStdString() + ")",
                  worst.first, allowed);
}

void printTable(const Figures& figures, const QStringList& keys)
{
    printOpenings(figures, 5, 60, keys);
    printOpenings(figures, 64, 150, keys);
    printAdvising(figures, 5, 5, keys);
    printAdvising(figures, 64, 20, keys);
    const auto print = [&figures](const std::string& what, const std::string& benchmark) {
        if (const auto* medians = figures.of(benchmark))
            printTime(what, medians->milliseconds);
    };
    const std::string grid = "who may kick whom, 64 profiles, 24,576 rows: ";
    print(grid + "open and load", opening(64, gridKey));
    print(grid + "filter by command, and back to all rows", "filter/64");
    print(grid + "toggle a cell", "toggle/64");
    print(grid + "save and reload", "save/64");
    print("reading a question file of 50,000 rows", "questions/5");
    if (const auto* medians = figures.of("article/5"))
        printTime("an article of 1 MiB, from the button to the painted box", medians->milliseconds, 100);
    if (const auto* medians = figures.of("versions/5"))
        printTime("the window of earlier versions with 200 entries", medians->milliseconds, 100);
    print("the news with a headline and a story of 1 MiB: a resize", "news/5");
}

} // namespace
} // namespace quillfen::bench

int main(int argc, char** argv)
{
    using namespace quillfen::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList keys = quillfen::bench::formKeys();
    Desk few(5);
    Desk many(64);
    registerAll(5, few, keys);
    registerAll(64, many, keys);
    Figures figures;
    figures.run(argc, argv);
    printTable(figures, keys);
    return 0;
}
