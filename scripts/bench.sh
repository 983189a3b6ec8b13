#!/usr/bin/env bash
# Prints the table of ratios: the programs for Linux, then the programs for Windows under Wine.
# docs/performance.md explains the rows.
#   scripts/bench.sh [--benchmark_filter=expression]
# Fails if a program fails: the two sides of a row had different results, or took far too long.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build bench qt windows
for preset in native mingw-x64; do
    cmake --preset "$preset" -DLUMENKIT_BENCH=ON >/dev/null
    scripts/build.sh "$preset" benches
done
scripts/wine.sh --prefix >/dev/null
scripts/wine.sh --end
trap 'scripts/wine.sh --end' EXIT

{
    for bench in build/native/bench/*_bench; do
        "$bench" "$@"
    done
    for bench in build/mingw-x64/bench/*_bench.exe; do
        scripts/wine.sh "$bench" "$@"
    done
} | awk '{ sub(/\r$/, "") } !/^\| (what|---)/ || !seen[$0]++'  # one heading for all programs
