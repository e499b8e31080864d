// The find box without its window: the index over all forms and their files on the disk, and the slowest of
// the keys that an owner types.
#include "figures.h"
#include "find/findforms.h"
#include "hubfolder.h"

#include <algorithm>
#include <map>
#include <memory>

namespace quillfen::bench {
namespace {

/// What the window asks for: so many hits.
constexpr std::size_t mostHits = 200;

/// Each is typed letter by letter, behind its last word by a blank.
constexpr const char* sentences[] = {"kick ban time",  "ban operator profile12",
                                     "iWarnsMakeKick", "enabled profiles profile6",
                                     "scroe clearers", "911"};

std::vector<FindableForm> findableForms(const FormCatalogue& forms)
{
    std::vector<FindableForm> findable;
    for (const FormDeclaration& form : forms)
        findable.push_back({form.form.name, form.form.caption, &form});
    return findable;
}

/// A hub of so many profiles with a built tree, made once.
const HubFolder& hubOf(std::int64_t profiles)
{
    static std::map<std::int64_t, std::unique_ptr<HubFolder>> hubs;
    auto& hub = hubs[profiles];
    if (!hub) {
        hub = std::make_unique<HubFolder>(static_cast<std::size_t>(profiles));
        hub->start();
    }
    return *hub;
}

void buildIndex(benchmark::State& state)
{
    const HubFolder& hub = hubOf(state.range(0));
    const FormCatalogue forms = formCatalogue();
    const auto findable = findableForms(forms);
    for (auto _ : state) {
        std::size_t entries = 0;
        state.SetIterationTime(
            secondsOf([&] { entries = indexOfForms(findable, hub.files, hub.profiles).size(); }));
        state.counters["entries"] = static_cast<double>(entries);
    }
}

void answerKeys(benchmark::State& state)
{
    const HubFolder& hub = hubOf(state.range(0));
    const FormCatalogue forms = formCatalogue();
    const FindIndex index = indexOfForms(findableForms(forms), hub.files, hub.profiles);
    for (auto _ : state) {
        double slowest = 0;
        for (const std::string sentence : sentences) {
            for (std::size_t typed = 1; typed <= sentence.size(); ++typed) {
                const FindQuery query(sentence.substr(0, typed));
                slowest = std::max(
                    slowest, secondsOf([&] { benchmark::DoNotOptimize(index.find(query, mostHits).count); }));
            }
        }
        state.SetIterationTime(slowest);
    }
}

constexpr int repetitions = 41;
constexpr int profileCounts[] = {5, 20, 64};

void printTable(const Figures& figures)
{
    for (const int count : profileCounts) {
        const std::string profiles = ", " + std::to_string(count) + " profiles";
        const bool isLargest = count == 64;
        if (const auto* build = figures.of("buildIndex/" + std::to_string(count)))
            printTime("the find box's index" + profiles + " (" +
                          number(build->counters.at("entries").value, 0) + " entries)",
                      build->milliseconds, isLargest ? std::optional(50.0) : std::nullopt);
        if (const auto* keys = figures.of("answerKeys/" + std::to_string(count)))
            printTime("the slowest key in the find box" + profiles, keys->milliseconds,
                      isLargest ? std::optional(10.0) : std::nullopt);
    }
}

} // namespace
} // namespace quillfen::bench

int main(int argc, char** argv)
{
    using namespace quillfen::bench;
    for (const int count : profileCounts) {
        repeated(benchmark::RegisterBenchmark("buildIndex", buildIndex)->Arg(count), repetitions);
        repeated(benchmark::RegisterBenchmark("answerKeys", answerKeys)->Arg(count), repetitions);
    }
    Figures figures;
    figures.run(argc, argv);
    printTable(figures);
    return 0;
}
