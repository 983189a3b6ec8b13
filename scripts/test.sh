#!/usr/bin/env bash
# What a change must pass: all tests, native and for Windows. Fails at the first step that does not.
# scripts/prove.sh does what a release needs besides.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/steps.sh

# The server for the other kind of processor is scripts/prove.sh's.
windows=mingw-x64
[ "$(dpkg --print-architecture)" != i386 ] || windows=mingw-x86

step "Packages (downloads)"
scripts/setup.sh build qt format screen windows wine

step "Formatting"
scripts/format.sh --check

step "Include rule"
python3 scripts/check_includes.py --self-test
python3 scripts/check_includes.py

step "Documents"
python3 scripts/check_docs.py --self-test
python3 scripts/check_docs.py

step "Build for Windows ($windows)"
scripts/build.sh "$windows"

# Programs for Windows share one processor and mostly wait, so the compiler has the rest.
step "Native build, beside the tests under Wine"
trap 'scripts/wine.sh --end' EXIT
wine_log=build/$windows/test.log
ctest --preset "$windows" -j "$(nproc)" >"$wine_log" 2>&1 &
wine_tests=$!
scripts/build.sh native

step "Native tests"
ctest --preset native -j "$(nproc)"

step "Tests under Wine: the rest of them"
wine_status=0
wait "$wine_tests" || wine_status=$?
cat "$wine_log"
[ "$wine_status" -eq 0 ] || exit "$wine_status"

all_steps_done
