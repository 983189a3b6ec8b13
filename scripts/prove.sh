#!/usr/bin/env bash
# What a release must pass in addition to scripts/test.sh. Stops at the first step that fails.
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
scripts/setup.sh build test qt designer python svg format screen wayland shells windows wine wine32 bench fuzz lint compilers analyse abi package
scripts/wine-root.sh --make >/dev/null

step "Build for Windows (x64, x86)"
scripts/build.sh mingw-x64
scripts/build.sh mingw-x86

step "The tests for x86 are those for x64"
diff <(names mingw-x64) <(names mingw-x86)
echo "$(names mingw-x86 | wc -l) tests each"

step "Sanitized build, beside the tests for x86 under Wine"
begin_wine_tests mingw-x86
scripts/build.sh native-asan

step "Sanitized tests"
ctest --preset native-asan -j "$(nproc)"

step "Tests for x86: the rest of them"
end_wine_tests

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

step "The binary interface of the widgets keeps its promise"
scripts/abi.sh

step "Packages"
scripts/package.sh

all_steps_done
