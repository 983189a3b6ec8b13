#!/usr/bin/env bash
# Prints the table of ratios; see docs/performance.md for what each row means.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build bench qt
cmake --preset native -DLUMENKIT_BENCH=ON >/dev/null
scripts/build.sh native
for bench in build/native/bench/*_bench; do
    "$bench" "$@"
done | awk '!/^\| (what|---)/ || !seen[$0]++'  # one heading for all
