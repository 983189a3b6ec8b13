#!/usr/bin/env bash
# Cross-compiles the portable code for Windows, 64 and 32 bits.
set -euo pipefail
cd "$(dirname "$0")/.."

for preset in mingw-x64 mingw-x86; do
    scripts/build.sh "$preset"
    echo "built build/$preset"
done
