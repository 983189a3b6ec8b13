// Benchmarks that measure a ratio: our work against a peer's, or against a bound of our own.
//
// Both sides run in turn, in pairs, so that what disturbs the machine disturbs both; the median of
// the pairs counts, and the spread says between what half of them lie. All ratios of a program end
// in one table, in Markdown.
#pragma once

#include <functional>
#include <string>

namespace lumenkit::bench {

/// One side of a ratio. A round is the shortest thing worth timing, such as one pass over all
/// captions; `units` says how many units (calls, or text units) a round is.
struct Side {
    std::function<void()> round;
    double units = 1;
    std::function<void()> prepare = {};  ///< before each batch of rounds; takes no time
};

enum class Ratio {
    TimesFaster,  ///< other / ours
    TimesSlower,  ///< ours / other
};

/// One row of the table: what, ours, other, ratio, spread and aim; times for a unit.
struct Comparison {
    std::string what;
    std::string unit;
    Side ours;
    Side other;
    Ratio ratio;
    std::string aim;
};

/// Registers `comparison` as a benchmark.
void AddComparison(Comparison comparison);

/// Runs what is registered and prints the table; the body of main. Understands the options of
/// Google Benchmark (on Windows of --benchmark_filter). The table gives no verdict: the result is 0
/// unless the options are wrong.
int RunComparisons(int argc, char** argv);

/// Keeps the compiler from leaving out the work that `value` comes from.
void Keep(const void* value);

}  // namespace lumenkit::bench
