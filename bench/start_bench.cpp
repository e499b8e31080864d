// Whole processes, each beside the bare window: the start, the memory, and every form's first opening. The
// programs start_window and bare_window must lie beside this one.
#include "figures.h"
#include "hubfolder.h"

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>

#include <algorithm>
#include <stdexcept>

namespace quillfen::bench {
namespace {

constexpr double kibPerMib = 1024;

/// What a process said of itself.
struct Ran
{
    double startSeconds = 0; ///< until its window was painted
    double peakKiB = 0;
    std::vector<double> heapKiB;                          ///< behind each round
    std::vector<std::map<std::string, double>> opened{1}; ///< by round and key, in milliseconds
};

/// Whether a process's malloc may set freed memory aside for its next request. What lies there counts as
/// held.
enum class FreedMemory
{
    SetAside,
    GivenBack
};

Ran ran(const QString& program, const QStringList& arguments, FreedMemory freed = FreedMemory::SetAside)
{
    QProcess process;
    if (freed == FreedMemory::GivenBack) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0");
        process.setProcessEnvironment(environment);
    }
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const auto begin = Clock::now();
    process.start(QCoreApplication::applicationDirPath() + '/' + program, arguments);
    if (!process.waitForFinished(300'000) || process.exitCode() != 0)
        throw std::runtime_error("no figures: " + program.toStdString());
    Ran result;
    for (const QString& line : QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n')) {
        const QString word = line.section(' ', 0, 0);
        const QString value = line.section(' ', 1, 1);
        if (word == "painted") {
            const Clock::time_point painted{std::chrono::nanoseconds(value.toLongLong())};
            result.startSeconds = std::chrono::duration<double>(painted - begin).count();
        } else if (word == "peak") {
            result.peakKiB = value.toDouble();
        } else if (word == "heap") {
            result.heapKiB.push_back(value.toDouble());
            result.opened.emplace_back();
        } else if (word == "opened") {
            result.opened.back()[line.section(' ', 2).trimmed().toStdString()] = value.toDouble();
        }
    }
    return result;
}

Ran ranBare()
{
    return ran("bare_window", {});
}

void startWindow(benchmark::State& state, const HubFolder& hub)
{
    for (auto _ : state) {
        const Ran ours = ran("start_window", {QString::fromStdString(hub.scripts())});
        const Ran bare = ranBare();
        reportPair(state, ours.startSeconds, bare.startSeconds);
        state.counters["peak"] = ours.peakKiB / kibPerMib;
        state.counters["barePeak"] = bare.peakKiB / kibPerMib;
    }
}

std::string mebibytes(double value)
{
    return number(value, 1) + " MiB";
}

void printPeak(const std::string& what, double peak, double bare)
{
    printRatio("peak memory, " + what, mebibytes(peak), mebibytes(bare), peak / bare, 1.4);
}

void printStart(const Figures& figures, const std::string& display)
{
    const auto* start = figures.of("startWindow");
    if (!start)
        return;
    printPair("start to the first painted window, " + display + ", beside the bare window", start, 1.25);
    printPeak("start, " + display + ", beside the bare window", start->counters.at("peak").value,
              start->counters.at("barePeak").value);
}

double medianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/// Each form's first opening in a process, the median of some processes.
void printFirstOpenings(const std::vector<Ran>& runs, const std::string& profiles)
{
    std::vector<std::pair<double, std::string>> forms;
    for (const auto& [key, time] : runs.front().opened.front()) {
        std::vector<double> times;
        for (const Ran& each : runs)
            times.push_back(each.opened.front().at(key));
        forms.emplace_back(medianOf(times), key);
    }
    std::sort(forms.begin(), forms.end());
    const std::string what = "first opening in a process, " + profiles + ": ";
    printTime(what + "median of " + std::to_string(forms.size()) + " forms", forms[forms.size() / 2].first);
    const std::string worst = QString::fromStdString(forms.back().second).replace('~', " ~ ").toStdString();
    printTime(what + "worst (" + worst + ")", forms.back().first);
}

constexpr int rounds = 4;
constexpr int processes = 5;

std::vector<Ran> rounded(const HubFolder& hub, FreedMemory freed)
{
    std::vector<Ran> runs;
    for (int process = 0; process < processes; ++process)
        runs.push_back(
            ran("start_window", {QString::fromStdString(hub.scripts()), QString::number(rounds)}, freed));
    return runs;
}

/// From run to run the same round leaves up to 256 bytes more or less, in odd parts of malloc's blocks.
constexpr double noGrowthKiB = 0.5;

/// What the heap holds more behind a round than behind the one before, the median of some processes.
void printGrowth(const std::vector<Ran>& runs, std::size_t round, const std::string& what)
{
    std::vector<double> growths;
    for (const Ran& each : runs)
        growths.push_back(each.heapKiB.at(round - 1) - each.heapKiB.at(round - 2));
    const double growth = medianOf(growths);
    printRow("heap growth, all forms opened and closed " + what, number(growth, 1) + " KiB", "", "", "none",
             growth < noGrowthKiB);
}

void printRounds(std::size_t profileCount)
{
    HubFolder hub(profileCount);
    hub.start();
    const auto runs = rounded(hub, FreedMemory::SetAside);
    std::vector<double> peaks;
    for (const Ran& each : runs)
        peaks.push_back(each.peakKiB / kibPerMib);
    const std::string profiles = std::to_string(profileCount) + " profiles";
    printPeak("all forms opened and closed in turn, " + profiles + ", beside the bare window",
              medianOf(peaks), ranBare().peakKiB / kibPerMib);
    const auto exactRuns = rounded(hub, FreedMemory::GivenBack);
    printGrowth(exactRuns, 2, "a second time, " + profiles);
    printGrowth(exactRuns, rounds, "a fourth time, " + profiles);
    printFirstOpenings(runs, profiles);
}

} // namespace
} // namespace quillfen::bench

int main(int argc, char** argv)
{
    using namespace quillfen::bench;
    const QCoreApplication application(argc, argv);
    HubFolder hub(5);
    hub.start();
    repeated(benchmark::RegisterBenchmark("startWindow",
                                          [&hub](benchmark::State& state) { startWindow(state, hub); }),
             31);
    Figures figures;
    figures.run(argc, argv);
    const bool offscreen = qgetenv("QT_QPA_PLATFORM") == "offscreen";
    printStart(figures, offscreen ? "Qt's offscreen platform" : "virtual X display");
    if (!offscreen)
        return 0;
    for (const std::size_t profiles : {std::size_t{5}, std::size_t{64}})
        printRounds(profiles);
    return 0;
}
