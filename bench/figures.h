#pragma once

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillfen::bench {

using Clock = std::chrono::steady_clock;

inline constexpr double millisecondsPerSecond = 1000;

/// The wall time of some work in seconds.
template <typename Work>
double secondsOf(const Work& work)
{
    const auto begin = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// Reports one repetition that was measured right beside its yardstick, so that both had the same weather.
inline void reportPair(benchmark::State& state, double seconds, double yardstickSeconds)
{
    state.SetIterationTime(seconds);
    state.counters["yardstick"] = yardstickSeconds * millisecondsPerSecond;
    state.counters["ratio"] = seconds / yardstickSeconds;
}

/// A benchmark of which each repetition is one measurement that sets its own time; its figure is the median.
inline benchmark::internal::Benchmark* repeated(benchmark::internal::Benchmark* each, int repetitions)
{
    return each->Iterations(1)
        ->Repetitions(repetitions)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->ReportAggregatesOnly();
}

/// Runs the benchmarks, their repetitions shuffled so that a busy spell of the machine spreads over all of
/// them, and keeps the medians. Its own report goes to standard error: standard output is the table's.
class Figures : public benchmark::ConsoleReporter
{
public:
    struct Medians
    {
        double milliseconds;
        benchmark::UserCounters counters;
    };

    void run(int argc, char** argv)
    {
        SetOutputStream(&std::cerr);
        std::string shuffled = "--benchmark_enable_random_interleaving=true";
        std::vector<char*> arguments(argv, argv + argc);
        arguments.push_back(shuffled.data());
        arguments.push_back(nullptr);
        int count = argc + 1;
        benchmark::Initialize(&count, arguments.data());
        benchmark::RunSpecifiedBenchmarks(this);
    }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            const auto& name = run.run_name;
            if (run.aggregate_name == "median")
                m_medians[name.function_name + (name.args.empty() ? "" : '/' + name.args)] = {
                    run.GetAdjustedRealTime(), run.counters};
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// The medians of one benchmark; none if it didn't run.
    const Medians* of(const std::string& benchmark) const
    {
        const auto found = m_medians.find(benchmark);
        return found == m_medians.end() ? nullptr : &found->second;
    }

private:
    std::map<std::string, Medians> m_medians;
};

inline std::string number(double value, int decimals)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

inline std::string milliseconds(double value)
{
    return number(value, value < 10 ? 2 : 1) + " ms";
}

/// One row of the table in docs/performance.md.
inline void printRow(const std::string& what, const std::string& measured, const std::string& yardstick,
                     const std::string& ratio, const std::string& target, std::optional<bool> holds)
{
    const char* verdict = holds ? (*holds ? "yes" : "**no**") : "";
    std::printf("| %s | %s | %s | %s | %s | %s |\n", what.c_str(), measured.c_str(), yardstick.c_str(),
                ratio.c_str(), target.c_str(), verdict);
}

/// A row of a figure beside its yardstick. Without a limit there is no target.
inline void printRatio(const std::string& what, const std::string& measured, const std::string& yardstick,
                       double ratio, std::optional<double> limit)
{
    printRow(what, measured, yardstick, number(ratio, 2), limit ? number(*limit, 2) + " times" : "",
             limit ? std::optional(ratio <= *limit) : std::nullopt);
}

/// The row of a benchmark that reported pairs.
inline void printPair(const std::string& what, const Figures::Medians* medians, std::optional<double> limit)
{
    if (!medians)
        return;
    printRatio(what, milliseconds(medians->milliseconds),
               milliseconds(medians->counters.at("yardstick").value), medians->counters.at("ratio").value,
               limit);
}

/// A row of a time that has no yardstick but perhaps a limit, in milliseconds.
inline void printTime(const std::string& what, double value, std::optional<double> limit = {})
{
    printRow(what, milliseconds(value), "", "", limit ? number(*limit, 0) + " ms" : "",
             limit ? std::optional(value <= *limit) : std::nullopt);
}

} // namespace quillfen::bench
