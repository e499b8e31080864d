#include "settings/profiles.h"
#include "settings/tablefile.h"
#include "support/plainscan.h"
#include "support/portalfakes.h"

#include <benchmark/benchmark.h>

namespace quillfen {
namespace {

/// One permission file of the heaviest grid: each profile's rights over each profile.
std::string gridFile(const HubProfiles& profiles)
{
    std::string bytes = "tKickCanBan = {\r\n";
    for (std::size_t by = 0; by < profiles.count(); ++by) {
        bytes += "\t[" + HubProfiles::key(by) + "] = {\r\n";
        for (std::size_t on = 0; on < profiles.count(); ++on)
            bytes += "\t\t[" + HubProfiles::key(on) + "] = " + (by < on ? "1" : "0") + ",\r\n";
        bytes += "\t},\r\n";
    }
    return bytes + "}\r\n";
}

HubProfiles hubOf(std::size_t count)
{
    HubProfiles profiles;
    while (profiles.count() < count)
        profiles.add("Profile");
    return profiles;
}

constexpr int gridFiles = 6;

void indexedGrid(benchmark::State& state)
{
    const auto profiles = hubOf(static_cast<std::size_t>(state.range(0)));
    const auto bytes = gridFile(profiles);
    for (auto _ : state) {
        std::size_t allowed = 0;
        for (int file = 0; file < gridFiles; ++file) {
            const TableIndex index(bytes);
            for (std::size_t by = 0; by < profiles.count(); ++by) {
                for (std::size_t on = 0; on < profiles.count(); ++on)
                    allowed += index.value(HubProfiles::key(on), HubProfiles::key(by)) == "1" ? 1U : 0U;
            }
        }
        benchmark::DoNotOptimize(allowed);
    }
    state.SetItemsProcessed(state.iterations() * gridFiles * state.range(0) * state.range(0));
}

void scannedGrid(benchmark::State& state)
{
    const auto profiles = hubOf(static_cast<std::size_t>(state.range(0)));
    const auto bytes = gridFile(profiles);
    for (auto _ : state) {
        std::size_t allowed = 0;
        for (int file = 0; file < gridFiles; ++file) {
            for (std::size_t by = 0; by < profiles.count(); ++by) {
                for (std::size_t on = 0; on < profiles.count(); ++on)
                    allowed +=
                        test::plainScan(bytes, HubProfiles::key(on), HubProfiles::key(by)) == "1" ? 1U : 0U;
            }
        }
        benchmark::DoNotOptimize(allowed);
    }
    state.SetItemsProcessed(state.iterations() * gridFiles * state.range(0) * state.range(0));
}

/// A burst of chat from hub 1 to hub 2, in one go or a byte at a time.
void relayBurst(benchmark::State& state, std::size_t piece)
{
    std::string burst;
    for (int line = 0; line < state.range(0); ++line)
        burst += "<user> line " + std::to_string(line) + '|';
    for (auto _ : state) {
        test::PortalFixture portal;
        portal.logIn(Link::One);
        portal.logIn(Link::Two);
        for (std::size_t at = 0; at < burst.size(); at += piece)
            portal.hear(Link::One, std::string_view(burst).substr(at, piece));
        benchmark::DoNotOptimize(portal.two.hub.sent.size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void relayInOneGo(benchmark::State& state)
{
    relayBurst(state, std::size_t{1} << 40U);
}

void relayByteByByte(benchmark::State& state)
{
    relayBurst(state, 1);
}

BENCHMARK(relayInOneGo)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(relayByteByByte)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(indexedGrid)->Arg(5)->Arg(20)->Arg(64)->Unit(benchmark::kMillisecond);
BENCHMARK(scannedGrid)->Arg(5)->Arg(20)->Arg(64)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfen
