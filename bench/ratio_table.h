// Benchmarks that measure a ratio: lumenkit's work against the work of a peer or against a bound.
//
// Both sides run in turn, in pairs, so that disturbances on the machine affect both. The ratio is
// the median of all pairs. The spread is the range from the lower to the upper quartile. All ratios
// of a program end in one table, in Markdown.
#pragma once

#include "bench/comparison.h"

namespace lumenkit::bench {

/// Registers `comparison` as a benchmark.
void AddComparison(Comparison comparison);

/// Runs the registered benchmarks and prints the table. This is the body of main. Accepts the
/// options of Google Benchmark (on Windows only --benchmark_filter). The table has no verdict:
/// returns 0 unless the options are wrong.
int RunComparisons(int argc, char** argv);

/// Keeps the compiler from removing the work that produces `value`.
void Keep(const void* value);

}  // namespace lumenkit::bench
