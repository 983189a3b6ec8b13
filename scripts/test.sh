#!/usr/bin/env bash
# Everything that must hold. Fails at the first thing that does not.
set -euo pipefail
cd "$(dirname "$0")/.."

step() { printf '\n== %s\n' "$*"; }

step "Formatting"
scripts/format.sh --check

step "Include rule"
scripts/setup.sh build screen
python3 scripts/check_includes.py --self-test
python3 scripts/check_includes.py

step "Documents"
python3 scripts/check_docs.py --self-test
python3 scripts/check_docs.py

step "Build and tests"
scripts/build.sh native
ctest --preset native -j "$(nproc)"

step "Build for Windows (x64, x86)"
scripts/build.sh mingw-x64
scripts/build.sh mingw-x86
ctest --preset mingw-x86

step "The component server comes out the same, byte for byte"
scripts/reproducible.sh

# Windows' programs share one processor and mostly wait for one another, which leaves the rest of
# the machine to the compiler.
step "Tests under Wine, beside the build under AddressSanitizer and UndefinedBehaviorSanitizer"
trap 'scripts/wine.sh --end' EXIT
wine_log=build/mingw-x64/test.log
ctest --preset mingw-x64 -j "$(nproc)" >"$wine_log" 2>&1 &
wine_tests=$!
nice scripts/build.sh native-asan
wine_status=0
wait "$wine_tests" || wine_status=$?
cat "$wine_log"
[ "$wine_status" -eq 0 ] || exit "$wine_status"

step "Tests under AddressSanitizer and UndefinedBehaviorSanitizer"
ctest --preset native-asan -j "$(nproc)"

step "Fuzzing, 30 seconds each"
scripts/fuzz.sh --short

step "Static analysis of the controls (make lint: of everything)"
scripts/lint.sh controls
