// The settings tree on the disk: its first build beside a copy of the same tree, and its rebuild beside plain
// writes of the same bytes to the same files.
#include "check/treecheck.h"
#include "figures.h"
#include "hubfolder.h"

#include <ctime>
#include <utility>

#ifdef __unix__
#include <unistd.h>
#endif

namespace quillfen::bench {
namespace {

/// The disk, with a record of what was written.
class RecordingStore : public DiskStore
{
public:
    void write(const std::string& path, std::string_view bytes) override
    {
        written.emplace_back(path, bytes);
        DiskStore::write(path, bytes);
    }

    void commit(const std::vector<StoreChange>& changes) override
    {
        for (const StoreChange& change : changes)
            written.emplace_back(change.path, change.bytes);
        DiskStore::commit(changes);
    }

    std::vector<std::pair<std::string, std::string>> written;
};

/// Lets the disk finish what was written before: a file that still is on its way there is written anew at the
/// cost of the one before.
void settle()
{
#ifdef __unix__
    sync();
#endif
}

/// What some work took, in seconds.
struct Spent
{
    double wall;
    double processor;
    double waiting; ///< for the disk, behind it
};

/// Times some work on a disk at rest. On a busy machine most of the wall time is waiting, which makes any two
/// works alike; the processor's time shows what the work itself costs.
template <typename Work>
Spent spentOn(const Work& work)
{
    settle();
    const std::clock_t begin = std::clock();
    const double wall = secondsOf(work);
    const double processor = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    return {wall, processor, secondsOf(settle)};
}

/// A build waits for the disk before it says that all is there. So its yardstick is told with and without the
/// same waiting.
void reportBoth(benchmark::State& state, const Spent& ours, const Spent& yardstick)
{
    reportPair(state, ours.wall, yardstick.wall);
    const double waited = yardstick.wall + yardstick.waiting;
    state.counters["waitedYardstick"] = waited * millisecondsPerSecond;
    state.counters["waitedRatio"] = ours.wall / waited;
    state.counters["cpu"] = ours.processor * millisecondsPerSecond;
    state.counters["cpuYardstick"] = yardstick.processor * millisecondsPerSecond;
    state.counters["cpuRatio"] = ours.processor / yardstick.processor;
}

void firstBuild(benchmark::State& state)
{
    HubFolder hub(static_cast<std::size_t>(state.range(0)));
    hub.start();
    for (auto _ : state) {
        std::filesystem::rename(hub.tree(), hub.folder() / "before");
        const Spent ours = spentOn([&] { hub.rebuild(); });
        const auto copyTree = [&] {
            std::filesystem::copy(hub.tree(), hub.folder() / "copy",
                                  std::filesystem::copy_options::recursive);
        };
        reportBoth(state, ours, spentOn(copyTree));
    }
}

using Written = std::vector<std::pair<std::string, std::string>>;

void writePlainly(const Written& written)
{
    for (const auto& [path, bytes] : written) {
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
}

/// Adds an empty line to each file of the tree, so that a rebuild finds none as it should be.
void makeStale(const HubFolder& hub)
{
    for (const auto& entry : std::filesystem::recursive_directory_iterator(hub.tree())) {
        if (entry.is_regular_file())
            std::ofstream(entry.path(), std::ios::binary | std::ios::app) << "\r\n";
    }
}

/// A rebuild that leaves each file as it is, or replaces it and keeps the old one, beside plain writes of
/// what it replaces then.
void rebuildTree(benchmark::State& state, bool replaces)
{
    HubFolder hub(static_cast<std::size_t>(state.range(0)));
    hub.start();
    RecordingStore recorder;
    makeStale(hub);
    hub.rebuild(SettingsFiles(recorder, SettingsPaths(hub.scripts())));
    for (auto _ : state) {
        std::filesystem::remove_all(hub.data());
        if (replaces)
            makeStale(hub);
        const Spent ours = spentOn([&] { hub.rebuild(); });
        reportBoth(state, ours, spentOn([&] { writePlainly(recorder.written); }));
    }
    std::size_t bytes = 0;
    for (const auto& [path, content] : recorder.written)
        bytes += content.size();
    state.counters["files"] = static_cast<double>(recorder.written.size());
    state.counters["KiB"] = static_cast<double>(bytes) / 1024;
}

/// A disk that lets nobody wait.
class UnsyncedCalls : public DiskCalls
{
public:
    void sync(Handle) override {}
    void syncFolder(const std::string&) override {}
};

/// A form's save of six files: the draft, the earlier versions and the replacing, without the waiting for the
/// disk.
void saveForm(benchmark::State& state)
{
    const HubFolder hub(5);
    UnsyncedCalls calls;
    DiskStore disk(calls);
    VersionStore versions(disk, hub.data().string());
    History history(disk, hub.folder().string(), versions);
    DraftStore store(disk);
    store.keepVersionsIn(&history);
    int round = 0;
    for (auto _ : state) {
        Written files;
        ++round;
        for (int file = 0; file < 6; ++file)
            files.emplace_back((hub.folder() / ("file" + std::to_string(file))).string(),
                               std::string(2000, static_cast<char>('a' + file)) + std::to_string(round));
        const auto save = [&] {
            Draft draft(store, {"a save"});
            for (const auto& [path, bytes] : files)
                store.write(path, bytes);
            draft.commit();
        };
        const double ours = secondsOf(save);
        reportPair(state, ours, secondsOf([&] { writePlainly(files); }));
    }
}

void checkTreeAlone(benchmark::State& state)
{
    HubFolder hub(static_cast<std::size_t>(state.range(0)));
    hub.start();
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(hub.tree()))
        files += entry.is_regular_file() ? 1U : 0U;
    for (auto _ : state) {
        std::size_t findings = 0;
        state.SetIterationTime(secondsOf([&] { findings = checkTree(hub.files).size(); }));
        if (findings > 0)
            state.SkipWithError("a fresh tree has findings");
    }
    state.counters["files"] = static_cast<double>(files);
}

constexpr int repetitions = 21;
constexpr int profileCounts[] = {5, 20, 64};

std::string profilesOf(int count)
{
    return std::to_string(count) + " profiles";
}

/// How many times as long as its yardstick some work may take.
struct Limits
{
    std::optional<double> plain{};
    std::optional<double> waited{};
    std::optional<double> processor{};
};

void printEach(const std::string& what, const Figures::Medians& medians, const Limits& limits)
{
    printPair(what, &medians, limits.plain);
    const auto counter = [&medians](const char* name) { return medians.counters.at(name).value; };
    printRatio(what + " and waiting for the disk", milliseconds(medians.milliseconds),
               milliseconds(counter("waitedYardstick")), counter("waitedRatio"), limits.waited);
    printRatio(what + ", processor time", milliseconds(counter("cpu")), milliseconds(counter("cpuYardstick")),
               counter("cpuRatio"), limits.processor);
}

void printTable(const Figures& figures)
{
    for (const int count : profileCounts) {
        if (const auto* build = figures.of("firstBuild/" + std::to_string(count)))
            printEach("first build of the tree, " + profilesOf(count) + ", beside copying it", *build,
                      {.waited = 1.5, .processor = 1.5});
    }
    for (const int count : profileCounts) {
        for (const std::string which : {"unchanged", "replaced"}) {
            const auto* rebuild = figures.of("rebuild_" + which + '/' + std::to_string(count));
            if (!rebuild)
                continue;
            printEach("rebuild, " + profilesOf(count) + " (" +
                          number(rebuild->counters.at("files").value, 0) + " files, " +
                          number(rebuild->counters.at("KiB").value, 0) + " KiB, " + which +
                          "), beside writing the same bytes",
                      *rebuild, {.plain = count == 64 ? std::optional(3.0) : std::nullopt});
        }
    }
    if (const auto* save = figures.of("saveForm"))
        printPair("save of six files without waiting for the disk, beside plain writes", save, {});
    for (const int count : profileCounts) {
        if (const auto* check = figures.of("checkTree/" + std::to_string(count)))
            printTime("check of the tree, " + profilesOf(count) + " (" +
                          number(check->counters.at("files").value, 0) + " files)",
                      check->milliseconds, count == 64 ? std::optional(50.0) : std::nullopt);
    }
}

} // namespace
} // namespace quillfen::bench

int main(int argc, char** argv)
{
    using namespace quillfen::bench;
    for (const int count : profileCounts) {
        repeated(benchmark::RegisterBenchmark("firstBuild", firstBuild)->Arg(count), repetitions);
        repeated(benchmark::RegisterBenchmark("rebuild_unchanged", rebuildTree, false)->Arg(count),
                 repetitions);
        repeated(benchmark::RegisterBenchmark("rebuild_replaced", rebuildTree, true)->Arg(count),
                 repetitions);
        repeated(benchmark::RegisterBenchmark("checkTree", checkTreeAlone)->Arg(count), repetitions);
    }
    repeated(benchmark::RegisterBenchmark("saveForm", saveForm), repetitions);
    Figures figures;
    figures.run(argc, argv);
    printTable(figures);
    return 0;
}
