#!/usr/bin/env bash
# Configures and builds one preset:  scripts/build.sh PRESET [target...]
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    sed -n '2s/^# //p' "$0"
    cmake --list-presets
    exit 2
} >&2

[ $# -gt 0 ] || usage
preset=$1
shift
case $preset in
    native | dev) scripts/setup.sh build test qt designer ;;
    native-asan) scripts/setup.sh build test qt fuzz ;;
    coverage) scripts/setup.sh build test coverage ;;
    mingw-*) scripts/setup.sh build windows ;;
    *) usage ;;
esac
cmake --preset "$preset" >/dev/null
# Quiet unless something goes wrong.
log=build/$preset/build.log
if ! cmake --build --preset "$preset" ${1:+--target "$@"} >"$log" 2>&1; then
    cat "$log"
    exit 1
fi
