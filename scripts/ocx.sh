#!/usr/bin/env bash
# Cross-compiles the component server for Windows x64 and x86.
set -euo pipefail
cd "$(dirname "$0")/.."

for preset in mingw-x64 mingw-x86; do
    scripts/build.sh "$preset" lumenkit_ocx
    echo "built build/$preset/lumenkit.ocx, $(stat -c %s "build/$preset/lumenkit.ocx") bytes"
done
