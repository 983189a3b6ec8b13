#!/usr/bin/env bash
# What a change must pass: all tests, native and for Windows. Stops at the first step that fails.
# A release must also pass scripts/prove.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/steps.sh

# The server for the other bitness is tested by scripts/prove.sh.
windows=mingw-x64
[ "$(dpkg --print-architecture)" != i386 ] || windows=mingw-x86

step "Packages (downloads)"
scripts/setup.sh build test qt designer python svg format screen wayland shells windows wine

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

step "Native build, beside the tests under Wine"
begin_wine_tests "$windows"
scripts/build.sh native

step "Native tests"
ctest --preset native -j "$(nproc)"

step "Tests under Wine: the rest of them"
end_wine_tests

all_steps_done
