#!/usr/bin/env bash
# Compiles all native sources with the versions of clang that Debian has besides clang 14, as far as
# their warnings go: nothing is optimised or linked. scripts/lint.sh reports the warnings of clang 14.
#   scripts/compilers.sh [clang++-N...]      these; else all of them
# The newest reads the tests and the benchmarks too.
set -euo pipefail
cd "$(dirname "$0")/.."

compilers=(clang++-15 clang++-16 clang++-19)

# commands BUILD: how each unit is compiled, one a line. What Qt generates is left out. A local may
# shadow a name of another source in its unit; the build with g++ reports the others.
commands() {
    python3 - "$1/compile_commands.json" <<'PYTHON'
import json
import sys

for entry in json.load(open(sys.argv[1], encoding="utf-8")):
    name = entry["file"].rpartition("/")[2]
    if name != "mocs_compilation.cpp" and not name.startswith("qrc_"):
        print(entry["command"], "-fsyntax-only -Wno-shadow")
PYTHON
}

# All sources of a target are one unit, which is most of what makes this quick.
read_with() {
    local compiler=$1 build=build/compilers/$1 everything=OFF count
    [ "$compiler" != "${compilers[-1]}" ] || everything=ON
    rm -rf "$build"
    cmake --preset native -B "$build" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
        -DLUMENKIT_TESTS=$everything -DLUMENKIT_BENCH=$everything >/dev/null
    # What uic makes is included.
    [ "$everything" = OFF ] || ninja -C "$build" designer_form_test_autogen >/dev/null
    commands "$build" >"$build/commands"
    count=$(wc -l <"$build/commands")
    [ "$count" -gt 20 ]
    (cd "$build" && xargs -a commands -d '\n' -P "$(nproc)" -n 1 sh -c)
    echo "$compiler: $count units without a warning, in $SECONDS s"
}

scripts/setup.sh build qt designer bench compilers
[ $# -gt 0 ] || set -- "${compilers[@]}"
for compiler in "$@"; do
    SECONDS=0
    read_with "$compiler"
done
