// The settings tree on the disk: its first build beside a copy of the same tree, and its rebuild beside plain
// writes of the same bytes to the same files.
#include "figures.h"
#include "hubfolder.h"

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

/// The wall time of some work on a disk at rest.
template <typename Work>
double settledSecondsOf(const Work& work)
{
    settle();
    return secondsOf(work);
}

void firstBuild(benchmark::State& state)
{
    HubFolder hub(static_cast<std::size_t>(state.range(0)));
    hub.start();
    for (auto _ : state) {
        std::filesystem::remove_all(hub.tree());
        const double ours = settledSecondsOf([&] { hub.rebuild(); });
        const auto copyTree = [&] {
            std::filesystem::copy(hub.tree(), hub.folder() / "copy",
                                  std::filesystem::copy_options::recursive);
        };
        reportPair(state, ours, settledSecondsOf(copyTree));
    }
}

void rebuildTree(benchmark::State& state)
{
    HubFolder hub(static_cast<std::size_t>(state.range(0)));
    hub.start();
    RecordingStore recorder;
    hub.rebuild(SettingsFiles(recorder, SettingsPaths(hub.scripts())));
    const auto writePlainly = [&] {
        for (const auto& [path, bytes] : recorder.written) {
            std::ofstream file(path, std::ios::binary | std::ios::trunc);
            file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        }
    };
    for (auto _ : state) {
        const double ours = settledSecondsOf([&] { hub.rebuild(); });
        reportPair(state, ours, settledSecondsOf(writePlainly));
    }
    std::size_t bytes = 0;
    for (const auto& [path, content] : recorder.written)
        bytes += content.size();
    state.counters["files"] = static_cast<double>(recorder.written.size());
    state.counters["KiB"] = static_cast<double>(bytes) / 1024;
}

constexpr int repetitions = 41;
constexpr int profileCounts[] = {5, 20, 64};

std::string profilesOf(int count)
{
    return std::to_string(count) + " profiles";
}

void printTable(const Figures& figures)
{
    for (const int count : profileCounts)
        printPair("first build of the tree, " + profilesOf(count) + ", beside copying it",
                  figures.of("firstBuild/" + std::to_string(count)), 1.5);
    for (const int count : profileCounts) {
        const auto* rebuild = figures.of("rebuildTree/" + std::to_string(count));
        if (!rebuild)
            continue;
        printPair("rebuild, " + profilesOf(count) + " (" + number(rebuild->counters.at("files").value, 0) +
                      " files, " + number(rebuild->counters.at("KiB").value, 0) +
                      " KiB), beside writing the same bytes",
                  rebuild, count == 64 ? std::optional(3.0) : std::nullopt);
    }
}

} // namespace
} // namespace quillfen::bench

int main(int argc, char** argv)
{
    using namespace quillfen::bench;
    for (const int count : profileCounts) {
        repeated(benchmark::RegisterBenchmark("firstBuild", firstBuild)->Arg(count), repetitions);
        repeated(benchmark::RegisterBenchmark("rebuildTree", rebuildTree)->Arg(count), repetitions);
    }
    Figures figures;
    figures.run(argc, argv);
    printTable(figures);
    return 0;
}
