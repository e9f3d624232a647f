#include <algorithm>
#include <chrono>
#include <map>
#include <string>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include "BenchCommands.h"
#include "commands/CommandIndex.h"
#include "commands/CommandSearch.h"
#include "platform/memory/MemoryPreferencesDomain.h"

namespace tovrel::bench {
namespace {

using Clock = std::chrono::steady_clock;

double microsecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The text services with the transliterator and the collator opened, as in a program that has run for a
/// while.
const TextServices& warmServices() {
    static const TextServices services("en_US");
    static const CommandSearchIndex warmed(commands(100), services);
    return services;
}

void BM_IndexBuild(benchmark::State& state) {
    const std::vector<Command> list = commands(static_cast<std::size_t>(state.range(0)));
    const TextServices& services = warmServices();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        std::vector<Command> copy = list;
        state.ResumeTiming();
        const CommandSearchIndex index(std::move(copy), services);
        benchmark::DoNotOptimize(index.entries().data());
    }
}
BENCHMARK(BM_IndexBuild)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

/// Types every query letter by letter. One iteration types all of them. The counters are per key press: the
/// median over all key presses, and the slowest key press, each of them taken as its median over the
/// iterations.
void BM_Keystrokes(benchmark::State& state) {
    const TextServices& services = warmServices();
    const CommandSearchIndex index(commands(static_cast<std::size_t>(state.range(0))), services);
    std::map<std::string, std::vector<double>> times;
    for ([[maybe_unused]] auto _ : state) {
        for (const char* query : queries()) {
            CommandSearch search;
            std::string typed;
            for (const std::string_view character : services.graphemeClusters(query)) {
                typed += character;
                const Text text = typed;
                const Clock::time_point start = Clock::now();
                const CommandSearchResults results = search.search(text, index);
                times[typed].push_back(microsecondsSince(start));
                benchmark::DoNotOptimize(results.size());
            }
        }
    }
    std::vector<double> medians;
    std::string slowest;
    double slowestTime = 0;
    for (const auto& [typed, taken] : times) {
        medians.push_back(median(taken));
        if (medians.back() > slowestTime) {
            slowestTime = medians.back();
            slowest = typed;
        }
    }
    state.counters["keystroke_median_us"] = median(medians);
    state.counters["keystroke_slowest_us"] = slowestTime;
    state.SetLabel("slowest: \"" + slowest + "\"");
}
BENCHMARK(BM_Keystrokes)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

/// Searches each query whole, without a search before it, for comparison with the time of a filter program
/// for the same query.
void BM_WholeQueries(benchmark::State& state) {
    const CommandSearchIndex index(commands(static_cast<std::size_t>(state.range(0))), warmServices());
    std::vector<double> taken;
    for ([[maybe_unused]] auto _ : state) {
        for (const char* query : queries()) {
            const Text text = query;
            const Clock::time_point start = Clock::now();
            const CommandSearchResults results = CommandSearch().search(text, index);
            taken.push_back(microsecondsSince(start));
            benchmark::DoNotOptimize(results.size());
        }
    }
    state.counters["query_median_us"] = median(taken);
}
BENCHMARK(BM_WholeQueries)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

/// The command list of 3,000 menu items with a history of 5,000 records, which is decoded again for each
/// list.
void BM_CommandList(benchmark::State& state) {
    const std::vector<ScannedMenuItem> tree = menuTree(3000);
    const std::vector<Command> known = commands(5000);
    json::Value document = json::Value::object();
    for (const Command& command : known) {
        document[command.id.utf8()] = toJson(
            CommandRankSignals{.isFavorite = false, .usageCount = 3, .lastUsedAt = PointInTime{700000000.5}});
    }
    const PreferenceData stored{json::dump(document)};
    MemoryPreferencesDomain domain;
    for ([[maybe_unused]] auto _ : state) {
        domain.set("Tovrel.commandHistory", stored);
        CommandHistoryStore history(domain, "Tovrel.commandHistory", warmServices());
        const std::vector<Command> list =
            CommandIndex::buildCommands(tree, {}, Text("org.example.Editor"), {}, {}, history);
        benchmark::DoNotOptimize(list.data());
    }
    state.counters["records"] = static_cast<double>(document.size());
}
BENCHMARK(BM_CommandList)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tovrel::bench

BENCHMARK_MAIN();
