#!/usr/bin/env bash
# clang-tidy over every source of the project; headers are read through them.
#   scripts/lint.sh               all
#   scripts/lint.sh file...       some, and the findings in these files only
# Fails where a source is compiled by no build. Ends by saying how many sources were read.
set -euo pipefail
cd "$(dirname "$0")/.."

databases=build/lint

# Two builds compile all sources, many in one translation unit: clang-tidy takes most of its time for
# reading the headers of other libraries, once for each unit. For Linux the compiler is clang.
configure_linux() {
    configure native linux -DCMAKE_CXX_COMPILER=clang++ -DLUMENKIT_FUZZ=ON
    ninja -C "$databases/linux" designer_form_test_autogen >/dev/null
}

# For Windows clang stands in for the cross-compiler, with that compiler's library.
configure_windows() {
    configure mingw-x64 windows
    ninja -C "$databases/windows" -t targets all | sed -nE 's/^([^/:][^:]*\.h): .*/\1/p' |
        xargs ninja -C "$databases/windows" >/dev/null
    sed -i 's/ -fno-keep-inline-dllexport//' "$databases/windows/compile_commands.json"
}

# configure PRESET NAME [option...]
configure() {
    cmake --preset "$1" -B "$databases/$2" -DLUMENKIT_BENCH=ON \
        -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON "${@:3}" >/dev/null
    copy_settings "$2"
}

# Units lie in the folders of the build, so the settings of the sources' folders go there, too.
copy_settings() {
    git ls-files '*/.clang-tidy' | xargs cp --parents -t "$databases/$1"
}

# The module that keeps the checks out of system headers.
scope=$databases/lint_scope.so
build_scope() {
    scope_options=(-std=c++20 -fPIC -isystem "$(llvm-config --includedir)")
    clang++ "${scope_options[@]}" -shared -O1 scripts/lint_scope.cpp -o "$scope"
}

# check DATABASE [option...]: the units that were chosen from it. In a unit, a local may shadow a name
# of another source.
check() {
    xargs -r -P "$(nproc)" -n 1 clang-tidy -p "$databases/$1" --quiet --warnings-as-errors='*' \
        --load="$scope" --checks=-bugprone-suspicious-include,lumenkit-scope --extra-arg=-Wno-shadow "${filter[@]}" "${@:2}" <"$units/$1" \
        2> >(grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -header-filter' >&2)
}

scripts/setup.sh build qt designer bench fuzz windows lint
configure_linux
configure_windows
build_scope

units=$(mktemp -d)
trap 'rm -rf "$units"' EXIT
filter=()
if [ $# -gt 0 ]; then
    printf '%s\n' "$@" >"$units/sources"
    filter=("--header-filter=/($(IFS='|'; echo "$*"))\$")
else
    git ls-files --cached --others --exclude-standard '*.cpp' >"$units/sources"
fi
# Compiled by tests/install, which uses the installed library, and above.
alone='^(samples/(library|widgets)|tests/install|scripts)/'
grep -E "$alone" "$units/sources" >"$units/alone" || true
grep -vE "$alone" "$units/sources" |
    python3 scripts/lint_units.py "$units" "$databases/linux" "$databases/windows"
if [ -s "$units/none" ]; then
    echo "compiled by no build, so not checked:" >&2
    cat "$units/none" >&2
    exit 1
fi

# g++, which compiles for Windows, does not count changes of sign among the conversions.
compiler=x86_64-w64-mingw32-g++-posix
library=$(dirname "$("$compiler" -print-libgcc-file-name)")/include/c++
status=0
mapfile -t alone <"$units/alone"
for source in "${alone[@]}"; do
    options=(-std=c++20 -I.)
    case $source in
        # Compiles without the library's headers, and in its own language.
        tests/install/consumer/bystander.cpp) options=(-std=c++17) ;;
        samples/widgets/*)
            read -ra qt <<<"$(pkg-config --cflags Qt6Widgets)"
            options=(-std=c++17 -fPIC -Iwidgets/include "${qt[@]/#-I/-isystem}")
            ;;
        scripts/lint_scope.cpp) options=("${scope_options[@]}") ;;
    esac
    clang-tidy --load="$scope" --checks=lumenkit-scope --quiet --warnings-as-errors='*' "$source" -- \
        "${options[@]}" || status=1
done
check linux || status=1
check windows --extra-arg=--target=x86_64-w64-mingw32 --extra-arg=-Wno-unused-command-line-argument \
    --extra-arg=-nostdinc++ --extra-arg=-Wno-sign-conversion "--extra-arg=-isystem$library" \
    "--extra-arg=-isystem$library/x86_64-w64-mingw32" || status=1
[ "$status" -eq 0 ] || exit 1
echo "clang-tidy: $(wc -l <"$units/sources") sources read, in $(wc -l <"$units/linux") units for Linux" \
    "and $(wc -l <"$units/windows") for Windows: clean"
