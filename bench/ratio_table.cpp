#include "bench/ratio_table.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace lumenkit::bench {

namespace {

constexpr int pairCount = 41;
constexpr double secondsOfABatch = 0.004;

// Processor time: other programs on the machine count little.
double Now() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double TimeOf(const Side& side, int rounds) {
    const double start = Now();
    for (int i = 0; i < rounds; ++i) {
        side.round();
    }
    return Now() - start;
}

// How many rounds make a batch long enough for the clock. Warms the side up, too.
int RoundsOfABatch(const Side& side) {
    int rounds = 1;
    while (TimeOf(side, rounds) < secondsOfABatch) {
        rounds *= 2;
    }
    return rounds;
}

// The value that a quarter, half or three quarters of the values lie below.
double Quartile(std::vector<double> values, std::size_t quarters) {
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(values.size() * quarters / 4);
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

double Median(std::vector<double> values) {
    return Quartile(std::move(values), 2);
}

// Each iteration is one pair.
void Measure(benchmark::State& state, const Comparison& comparison) {
    const int ourRounds = RoundsOfABatch(comparison.ours);
    const int otherRounds = RoundsOfABatch(comparison.other);
    std::vector<double> ours;
    std::vector<double> others;
    std::vector<double> ratios;
    bool oursFirst = true;
    for ([[maybe_unused]] auto pair : state) {
        const auto measureOurs = [&] {
            ours.push_back(TimeOf(comparison.ours, ourRounds) / ourRounds / comparison.ours.units);
        };
        const auto measureOther = [&] {
            others.push_back(TimeOf(comparison.other, otherRounds) / otherRounds /
                             comparison.other.units);
        };
        if (oursFirst) {
            measureOurs();
            measureOther();
        } else {
            measureOther();
            measureOurs();
        }
        oursFirst = !oursFirst;
        ratios.push_back(comparison.ratio == Ratio::TimesFaster ? others.back() / ours.back()
                                                                : ours.back() / others.back());
    }
    state.counters["ours"] = Median(ours);
    state.counters["other"] = Median(others);
    state.counters["ratio"] = Median(ratios);
    state.counters["low"] = Quartile(ratios, 1);
    state.counters["high"] = Quartile(ratios, 3);
}

std::vector<Comparison>& Comparisons() {
    static std::vector<Comparison> comparisons;
    return comparisons;
}

class RatioTable final : public benchmark::BenchmarkReporter {
 public:
    bool ReportContext(const Context&) override {
        PrintRow("what", "ours", "peer or bound", "ratio", "spread", "aim");
        PrintRow("---", "--:", "--:", "--:", "--:", "---");
        return true;
    }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            const auto comparison =
                std::ranges::find(Comparisons(), run.run_name.function_name, &Comparison::what);
            PrintRow(
                comparison->what, Time(run.counters.at("ours"), comparison->unit),
                Time(run.counters.at("other"), comparison->unit),
                Rounded(run.counters.at("ratio"), "x"),
                Rounded(run.counters.at("low"), "") + " to " + Rounded(run.counters.at("high"), ""),
                comparison->aim);
        }
    }

 private:
    static std::string Rounded(double number, const char* unit) {
        char image[64];
        std::snprintf(image, sizeof image, number < 100 ? "%.2f%s" : "%.0f%s", number, unit);
        return image;
    }

    static std::string Time(double seconds, const std::string& unit) {
        const double nanoseconds = seconds * 1e9;
        constexpr double large = 10'000;
        return nanoseconds < large ? Rounded(nanoseconds, (" ns/" + unit).c_str())
                                   : Rounded(nanoseconds / 1000, (" us/" + unit).c_str());
    }

    static void PrintRow(const std::string& what, const std::string& ours, const std::string& other,
                         const std::string& ratio, const std::string& spread,
                         const std::string& aim) {
        std::printf("| %-64s | %18s | %18s | %8s | %15s | %-9s |\n", what.c_str(), ours.c_str(),
                    other.c_str(), ratio.c_str(), spread.c_str(), aim.c_str());
        std::fflush(stdout);
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
        })->Iterations(pairCount);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    Comparisons().clear();  // what they hold may need what main holds
    return 0;
}

void Keep(const void* value) {
    benchmark::DoNotOptimize(value);
}

}  // namespace lumenkit::bench
