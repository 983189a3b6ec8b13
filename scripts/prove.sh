#!/usr/bin/env bash
# What a release must pass besides scripts/test.sh. Fails at the first step that does not hold.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/steps.sh

if [ "$(dpkg --print-architecture)" != amd64 ]; then
    echo "make prove runs programs for Windows of both kinds, which takes an amd64 machine." >&2
    exit 1
fi

# names PRESET: its tests, one a line.
names() {
    ctest --preset "$1" -N | sed -n 's/^ *Test *#[0-9]*: //p' | sort
}

step "Packages (downloads)"
scripts/setup.sh build qt format screen windows wine wine32 bench fuzz lint compilers analyse package
scripts/wine-root.sh --make >/dev/null

step "Build for Windows (x64, x86)"
scripts/build.sh mingw-x64
scripts/build.sh mingw-x86

step "The tests for x86 are those for x64"
diff <(names mingw-x64) <(names mingw-x86)
echo "$(names mingw-x86 | wc -l) tests each"

step "Sanitized build, beside the tests for x86 under Wine"
trap 'scripts/wine.sh --end' EXIT
wine_log=build/mingw-x86/test.log
ctest --preset mingw-x86 -j "$(nproc)" >"$wine_log" 2>&1 &
wine_tests=$!
scripts/build.sh native-asan

step "Sanitized tests"
ctest --preset native-asan -j "$(nproc)"

step "Tests for x86: the rest of them"
wine_status=0
wait "$wine_tests" || wine_status=$?
cat "$wine_log"
[ "$wine_status" -eq 0 ] || exit "$wine_status"

step "Fuzzing, 30 seconds a target"
scripts/fuzz.sh --short

step "clang-tidy over all sources"
scripts/lint.sh

step "Every header compiles alone"
scripts/headers.sh

step "Other compilers"
scripts/compilers.sh

step "The component server comes out the same, byte for byte"
scripts/reproducible.sh
scripts/reproducible.sh --elsewhere

step "cppcheck and Valgrind"
scripts/analyse.sh

step "Packages"
scripts/package.sh

all_steps_done
