#!/usr/bin/env bash
# clang-tidy over every source of the project; headers are read through them.
#   scripts/lint.sh               all
#   scripts/lint.sh file...       some
# Fails where a source is compiled by no build. Ends by saying how many sources were read.
set -euo pipefail
cd "$(dirname "$0")/.."

databases=build/lint

# Each source is compiled by one of two builds, both configured so that clang reads them source by
# source. The one for Linux is by clang itself, with precompiled headers.
configure_linux() {
    cmake --preset native -B "$databases/linux" -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_UNITY_BUILD=OFF \
        -DLUMENKIT_PRECOMPILE=ON -DLUMENKIT_BENCH=ON -DLUMENKIT_FUZZ=ON >/dev/null
    make_headers "$databases/linux"
}

# For Windows clang stands in for the cross-compiler, with that compiler's library.
configure_windows() {
    cmake --preset mingw-x64 -B "$databases/windows" -DCMAKE_UNITY_BUILD=OFF -DLUMENKIT_BENCH=ON \
        >/dev/null
    make_headers "$databases/windows"
    sed -i -E -e 's/ -Winvalid-pch -include [^ ]+cmake_pch\.hxx//' -e 's/ -fno-keep-inline-dllexport//' \
        "$databases/windows/compile_commands.json"
}

# make_headers BUILD: the headers that are generated or that clang precompiles, and nothing else.
make_headers() {
    ninja -C "$1" -t targets all |
        sed -nE 's/^([^/:][^:]*(\.h|cmake_pch\.hxx\.pch|_autogen)): .*/\1/p' |
        xargs -r ninja -C "$1" >"$1/build.log" 2>&1 || {
        cat "$1/build.log"
        exit 1
    }
}

# sources_in DATABASE: the project's sources that it compiles, as paths from the top.
sources_in() {
    python3 -c '
import json, os, sys
for entry in json.load(open(sys.argv[1] + "/compile_commands.json")):
    print(os.path.relpath(entry["file"]))' "$databases/$1" | sort -u
}

# check DATABASE [option...] <sources
check() {
    local database=$databases/$1
    shift
    xargs -r -P "$(nproc)" -n 2 clang-tidy -p "$database" --quiet --warnings-as-errors='*' "$@" \
        2> >(grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -header-filter' >&2)
}

scripts/setup.sh build qt bench fuzz windows lint
configure_linux
configure_windows

lists=$(mktemp -d)
trap 'rm -rf "$lists"' EXIT
if [ $# -gt 0 ]; then
    printf '%s\n' "$@"
else
    git ls-files --cached --others --exclude-standard '*.cpp'
fi | sort -u >"$lists/all"
sources_in linux | comm -12 - "$lists/all" >"$lists/linux"
sources_in windows | comm -12 - "$lists/all" | comm -23 - "$lists/linux" >"$lists/windows"
# Programs that use the installed library; tests/install builds them.
git ls-files 'samples/library/*.cpp' 'tests/install/*.cpp' | comm -12 - "$lists/all" >"$lists/users"
sort "$lists/linux" "$lists/windows" "$lists/users" | comm -13 - "$lists/all" >"$lists/none"
if [ -s "$lists/none" ]; then
    echo "compiled by no build, so not checked:" >&2
    cat "$lists/none" >&2
    exit 1
fi

compiler=x86_64-w64-mingw32-g++-posix
library=$(dirname "$("$compiler" -print-libgcc-file-name)")/include/c++
status=0
xargs -r -I{} clang-tidy --quiet --warnings-as-errors='*' {} -- -std=c++20 -I. <"$lists/users" || status=1
check linux <"$lists/linux" || status=1
check windows --extra-arg=--target=x86_64-w64-mingw32 --extra-arg=-Wno-unused-command-line-argument \
    --extra-arg=-nostdinc++ "--extra-arg=-isystem$library" \
    "--extra-arg=-isystem$library/x86_64-w64-mingw32" <"$lists/windows" || status=1
[ "$status" -eq 0 ] || exit 1
echo "clang-tidy: $(wc -l <"$lists/all") sources read ($(wc -l <"$lists/linux") for Linux," \
    "$(wc -l <"$lists/windows") for Windows), clean"
