#!/usr/bin/env bash
# Compiles each header in a translation unit of its own, so that none depends on what a neighbour
# happens to include.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build qt designer windows
for preset in native mingw-x64; do
    build=build/headers/$preset
    cmake --preset "$preset" -B "$build" -DLUMENKIT_HEADERS_ALONE=ON >/dev/null
    cmake --build "$build" --target lumenkit_headers_alone >"$build/build.log" 2>&1 || {
        cat "$build/build.log"
        exit 1
    }
    echo "$preset: $(find "$build" -path '*/alone/*.cpp' | wc -l) headers without a source of their name"
done
