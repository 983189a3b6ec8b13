#!/usr/bin/env bash
# clang-tidy over every source; headers are seen through them.
#   scripts/lint.sh                    all
#   scripts/lint.sh controls           the controls and what they stand on
#   scripts/lint.sh native|windows     those that this build compiles
#   scripts/lint.sh windows file...    some of them
set -euo pipefail
cd "$(dirname "$0")/.."

controls=('frame/*.cpp' 'vlabel/*.cpp' 'vmemo/*.cpp' 'voptlist/*.cpp' 'vlabelcaption/*.cpp')
native=("${controls[@]}"
    'runtime/memory/*.cpp' 'runtime/qt/*.cpp' 'forms/*.cpp' 'project/*.cpp' 'apps/*.cpp')
windows=('runtime/win32/*.cpp' 'runtime/ole/*.cpp' 'server/*.cpp')

# check DATABASE [option...] -- pattern...
check() {
    local database=$1 options=()
    shift
    while [ "$1" != -- ]; do
        options+=("$1")
        shift
    done
    git ls-files --cached --others --exclude-standard "$@" |
        xargs -P "$(nproc)" -n 4 clang-tidy -p "$database" --quiet --warnings-as-errors='*' \
            "${options[@]}" \
            2> >(grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -header-filter' >&2)
}

# database PRESET [sed option...]: the build's, made so that clang can read it, which reads nothing
# that g++ has precompiled: each source with its own includes alone.
database() {
    local preset=$1 file=build/$1/compile_commands.json folder=build/$1/lint
    shift
    [ -f "$file" ] || scripts/build.sh "$preset" >&2
    mkdir -p "$folder"
    sed -E -e 's/ -Winvalid-pch -include [^ ]+cmake_pch\.hxx//' "$@" "$file" \
        >"$folder/compile_commands.json"
    echo "$folder"
}

check_native() {
    local folder
    folder=$(database native)
    check "$folder" -- "$@"
}

# clang stands in for the cross-compiler: with its libraries, without the options it alone knows.
check_windows() {
    local compiler=x86_64-w64-mingw32-g++-posix folder libraries
    folder=$(database mingw-x64 -e 's/ -fno-keep-inline-dllexport//')
    libraries=$(dirname "$("$compiler" -print-libgcc-file-name)")/include/c++
    check "$folder" --extra-arg=--target=x86_64-w64-mingw32 \
        --extra-arg=-Wno-unused-command-line-argument --extra-arg=-nostdinc++ \
        "--extra-arg=-isystem$libraries" "--extra-arg=-isystem$libraries/x86_64-w64-mingw32" -- "$@"
}

scripts/setup.sh lint
part=${1:-all}
[ $# -eq 0 ] || shift
case $part in
    all)
        check_native "${native[@]}"
        check_windows "${windows[@]}"
        ;;
    controls)
        check_native "${controls[@]}"
        ;;
    native)
        [ $# -gt 0 ] || set -- "${native[@]}"
        check_native "$@"
        ;;
    windows)
        [ $# -gt 0 ] || set -- "${windows[@]}"
        check_windows "$@"
        ;;
    *)
        sed -n '2,6s/^# \{0,1\}//p' "$0"
        exit 2
        ;;
esac
echo "clang-tidy: clean"
