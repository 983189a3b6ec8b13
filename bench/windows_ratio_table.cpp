// The table on Windows, where Google Benchmark is not available. The only option is
// --benchmark_filter.
#include <cstdio>
#include <regex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/pairs.h"
#include "bench/ratio_rows.h"
#include "bench/ratio_table.h"
#include "bench/stopwatch.h"

namespace lumenkit::bench {

namespace {

constexpr int mostPairs = 401;
constexpr double secondsOfAComparison = 3;

std::vector<Comparison>& Comparisons() {
    static std::vector<Comparison> comparisons;
    return comparisons;
}

// Measures more pairs when the pairs are short: wall time also counts disturbances.
Outcome Measure(const Comparison& comparison) {
    Pairs pairs(comparison);
    const double end = SecondsNow() + secondsOfAComparison;
    for (int pair = 0; pair < Pairs::fewest || (pair < mostPairs && SecondsNow() < end); ++pair) {
        pairs.MeasureOne();
    }
    return pairs.Result();
}

}  // namespace

void AddComparison(Comparison comparison) {
    Comparisons().push_back(std::move(comparison));
}

int RunComparisons(int argc, char** argv) {
    constexpr std::string_view option = "--benchmark_filter=";
    std::regex filter("");  // finds all
    for (int argument = 1; argument < argc; ++argument) {
        const std::string_view given = argv[argument];
        if (!given.starts_with(option)) {
            std::fprintf(stderr, "unknown option: %s\n", argv[argument]);
            return 1;
        }
        filter = std::regex(std::string(given.substr(option.size())));
    }
    PrintHeading();
    for (const Comparison& comparison : Comparisons()) {
        if (std::regex_search(comparison.what, filter)) {
            PrintRow(comparison, Measure(comparison));
        }
    }
    Comparisons().clear();  // the sides may use objects that main destroys
    return 0;
}

void Keep(const void* /*value*/) {}  // opaque to its callers: this is another translation unit

}  // namespace lumenkit::bench
