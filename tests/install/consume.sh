#!/usr/bin/env bash
# Installs the development part of a build and builds the sample program against it, by CMake and by
# pkg-config:  consume.sh BUILD COMPILER
set -euo pipefail
top=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "$1" && pwd)
compiler=$2
work=$build/tests/install/consume
form=$top/samples/forms/label.frm

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --component development --prefix "$work/made" >/dev/null
# An installation may be moved.
mv "$work/made" "$work/prefix"
prefix=$work/prefix

expect_texts() {
    diff - <("$1" "$form") <<'TEXTS'
VLabel1
  Welcome to "lumenkit".
  first
  second
TEXTS
}

# By CMake.
cmake -S "$top/samples/library" -B "$work/cmake" -G Ninja -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake" >/dev/null
expect_texts "$work/cmake/label_texts"

# By pkg-config, with nothing but what it says.
export PKG_CONFIG_LIBDIR=$prefix/lib/pkgconfig
pkg-config --exact-version "$(sed -n 's/^project(lumenkit VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt")" lumenkit
read -ra flags <<<"$(pkg-config --cflags lumenkit)"
read -ra libraries <<<"$(pkg-config --libs lumenkit)"
"$compiler" -std=c++20 "${flags[@]}" "$top/samples/library/label_texts.cpp" "${libraries[@]}" \
    -o "$work/label_texts"
expect_texts "$work/label_texts"

# Every header that is installed: none leans on one that is not, none warns.
cd "$prefix/include/lumenkit"
find . -name '*.h' -printf '#include "%P"\n' | sort >"$work/headers.txt"
[ "$(wc -l <"$work/headers.txt")" -gt 50 ]
"$compiler" -std=c++20 -fsyntax-only -Wall -Wextra -Werror -I. -xc++ \
    "$work/headers.txt"

# The tree shows one folder and nothing else.
[ "$(ls "$prefix/include")" = lumenkit ]
echo "installed, moved and used by CMake and by pkg-config"
