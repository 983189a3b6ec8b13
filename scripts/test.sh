#!/usr/bin/env bash
# Everything that must hold. Fails at the first thing that does not.
set -euo pipefail
cd "$(dirname "$0")/.."

step() { printf '\n== %s\n' "$*"; }

step "Formatting"
scripts/format.sh --check

step "Include rule"
scripts/setup.sh build
python3 scripts/check_includes.py --self-test
python3 scripts/check_includes.py

step "Build and tests"
scripts/build.sh native
ctest --preset native -j "$(nproc)"

step "Build for Windows (x64, x86) and tests under Wine"
trap 'scripts/wine.sh --end' EXIT
scripts/build.sh mingw-x64
ctest --preset mingw-x64 -j "$(nproc)"
scripts/build.sh mingw-x86
ctest --preset mingw-x86

step "The component server comes out the same, byte for byte"
scripts/reproducible.sh

step "Static analysis of the controls (make lint: of everything)"
scripts/lint.sh controls

step "Build and tests under AddressSanitizer and UndefinedBehaviorSanitizer"
scripts/build.sh native-asan
ctest --preset native-asan -j "$(nproc)"
