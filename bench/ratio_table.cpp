#include "bench/ratio_table.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/pairs.h"
#include "bench/ratio_rows.h"

namespace lumenkit::bench {

namespace {

// Each iteration is one pair.
void Measure(benchmark::State& state, const Comparison& comparison) {
    Pairs pairs(comparison);
    for ([[maybe_unused]] auto pair : state) {
        pairs.MeasureOne();
    }
    const Outcome outcome = pairs.Result();
    state.counters["ours"] = outcome.ours;
    state.counters["other"] = outcome.other;
    state.counters["ratio"] = outcome.ratio;
    state.counters["low"] = outcome.low;
    state.counters["high"] = outcome.high;
}

std::vector<Comparison>& Comparisons() {
    static std::vector<Comparison> comparisons;
    return comparisons;
}

class RatioTable final : public benchmark::BenchmarkReporter {
 public:
    bool ReportContext(const Context&) override {
        PrintHeading();
        return true;
    }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            const auto comparison =
                std::ranges::find(Comparisons(), run.run_name.function_name, &Comparison::what);
            const auto counter = [&](const char* name) { return run.counters.at(name).value; };
            PrintRow(*comparison, {.ours = counter("ours"),
                                   .other = counter("other"),
                                   .ratio = counter("ratio"),
                                   .low = counter("low"),
                                   .high = counter("high")});
        }
    }
};

}  // namespace

void AddComparison(Comparison comparison) {
    Comparisons().push_back(std::move(comparison));
}

int RunComparisons(int argc, char** argv) {
    for (const Comparison& comparison : Comparisons()) {
        benchmark::RegisterBenchmark(comparison.what.c_str(), [&](benchmark::State& state) {
            Measure(state, comparison);
        })->Iterations(Pairs::fewest);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    Comparisons().clear();  // the sides may use objects that main destroys
    return 0;
}

void Keep(const void* value) {
    benchmark::DoNotOptimize(value);
}

}  // namespace lumenkit::bench
