#!/usr/bin/env bash
# Uses lumenkit as others do, from a build of it:  consume.sh BUILD COMPILER GENERATOR
#   found:       its development part, installed and moved, by CMake and by pkg-config
#   widgets:     its widgets, installed and moved, by CMake and by pkg-config, shared and static
#   contained:   the tree as a part of another project, by add_subdirectory and by FetchContent
#   configured:  the tree by itself, with nothing said
# CONSUME_UNITY=OFF compiles the contained library file by file, which takes longer.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
top=$(cd "$here/../.." && pwd)
build=$(cd "$1" && pwd)
compiler=$2
generator=$3
work=$build/tests/install/consume
unset CMAKE_BUILD_TYPE CMAKE_GENERATOR CXXFLAGS LDFLAGS DESTDIR

fail() {
    echo "consume: $*" >&2
    exit 1
}

expect_texts() {
    diff - <("$1" "$top/samples/forms/label.frm") <<'TEXTS'
VLabel1
  Welcome to "lumenkit".
  first
  second
TEXTS
}

# configure FOLDER [option...]: without a word of warning.
configure() {
    local folder=$work/$1
    shift
    cmake -Wdev -B "$folder" "$@" >"$folder.out" 2>"$folder.err" || fail "$(cat "$folder.err")"
    [ ! -s "$folder.err" ] || fail "configuring warns: $(cat "$folder.err")"
    if grep -E 'CMake (Deprecation )?Warning|[Ww]arning:' "$folder.out"; then
        fail "configuring warns"
    fi
}

# configure_consumer FOLDER [option...]: the strict project, whose own files get its own options.
configure_consumer() {
    local folder=$1
    shift
    configure "$folder" -S "$here/consumer" -G "$generator" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_CXX_FLAGS=-O0 "$@"
    python3 "$here/check_options.py" "$work/$folder/compile_commands.json"
}

build_quietly() {
    cmake --build "$work/$1" "${@:2}" >"$work/$1.log" 2>&1 || fail "$(cat "$work/$1.log")"
    ! grep -i 'warning:' "$work/$1.log" || fail "compiling warns"
}

# use_pkg_config FOLDER: a program made of what pkg-config says of the installation there, and of
# nothing else.
use_pkg_config() {
    local program=$1/label_texts flags libraries
    PKG_CONFIG_LIBDIR=$(dirname "$(find "$1" -name lumenkit.pc)")
    export PKG_CONFIG_LIBDIR
    pkg-config --exact-version \
        "$(sed -n 's/^project(lumenkit VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt")" lumenkit
    read -ra flags <<<"$(pkg-config --cflags lumenkit)"
    read -ra libraries <<<"$(pkg-config --libs lumenkit)"
    "$compiler" -std=c++20 "${flags[@]}" "$top/samples/library/label_texts.cpp" "${libraries[@]}" \
        -o "$program"
    expect_texts "$program"
}

# check_headers FOLDER: none leans on one that is not installed, none warns, and beside them there
# is nothing.
check_headers() {
    (
        cd "$1/include/lumenkit"
        find . -name '*.h' -printf '#include "%P"\n' | sort >"$work/headers.txt"
        [ "$(wc -l <"$work/headers.txt")" -gt 50 ] || fail "there are few headers"
        "$compiler" -std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror \
            -I. -xc++ "$work/headers.txt"
    )
    [ "$(ls "$1/include")" = lumenkit ] || fail "more than one folder in $1/include"
}

found() {
    cmake --install "$build" --component development --prefix "$work/made" >/dev/null
    # An installation may be moved.
    mv "$work/made" "$work/prefix"
    configure sample -S "$top/samples/library" -G "$generator" \
        -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$work/prefix"
    build_quietly sample
    expect_texts "$work/sample/label_texts"
    configure_consumer find_package -DLUMENKIT_BY=find_package -DCMAKE_PREFIX_PATH="$work/prefix"
    build_quietly find_package
    expect_texts "$work/find_package/label_texts"
    use_pkg_config "$work/prefix"
    check_headers "$work/prefix"
}

expect_order() {
    diff - <(QT_QPA_PLATFORM=offscreen "$@" --print) <<'ORDER'
Your order, by courier
Leave it at the door
c
ORDER
}

# configure_order FOLDER LIBRARY
configure_order() {
    configure "$1" -S "$top/samples/widgets" -G "$generator" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_PREFIX_PATH="$work/with_widgets" -DORDER_LINKS="$2"
}

# needs_library PROGRAM: whether it is linked with the shared library.
needs_library() {
    [[ $(objdump -p "$1") =~ NEEDED\ *liblumenkit-widgets\.so\.7 ]]
}

order_by_pkg_config() {
    local folder=$1 program=$work/order_by_pkg_config flags
    # Qt is where the machine has it.
    read -ra flags <<<"$(env -u PKG_CONFIG_LIBDIR PKG_CONFIG_PATH="$folder/pkgconfig" \
        pkg-config --cflags --libs lumenkit-widgets)"
    "$compiler" -std=c++17 -fPIC "$top/samples/widgets/order.cpp" "${flags[@]}" -o "$program"
    needs_library "$program" || fail "pkg-config names another library"
    LD_LIBRARY_PATH=$folder expect_order "$program"
}

widgets() {
    grep -qx 'LUMENKIT_QT:BOOL=ON' "$build/CMakeCache.txt" || return 0
    local component folder
    for component in development widgets widgets-development; do
        cmake --install "$build" --component $component --prefix "$work/made" >/dev/null
    done
    mv "$work/made" "$work/with_widgets"
    folder=$(dirname "$(find "$work/with_widgets" -name liblumenkit-widgets.so)")

    configure_order order lumenkit::widgets
    build_quietly order
    needs_library "$work/order/order" || fail "lumenkit::widgets is not the shared library"
    expect_order "$work/order/order"
    configure_order order_static lumenkit::widgets_static
    build_quietly order_static
    ! needs_library "$work/order_static/order" || fail "lumenkit::widgets_static is the shared library"
    expect_order "$work/order_static/order"
    order_by_pkg_config "$folder"

    # The core does without Qt, the widgets say what they miss.
    configure without_qt -S "$top/samples/library" -G "$generator" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_PREFIX_PATH="$work/with_widgets" -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON \
        --no-warn-unused-cli
    if (configure order_without_qt -S "$top/samples/widgets" -DCMAKE_PREFIX_PATH="$work/with_widgets" \
        -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON) 2>"$work/without_qt.err"; then
        fail "finds the widgets without Qt"
    fi
    grep -q Qt6 "$work/without_qt.err" || fail "does not say that Qt is missing"
    if (configure order_without_widgets -S "$top/samples/widgets" \
        -DCMAKE_PREFIX_PATH="$work/prefix") 2>"$work/without_widgets.err"; then
        fail "finds widgets that are not installed"
    fi
    grep -q 'component widgets of lumenkit is not installed' "$work/without_widgets.err" ||
        fail "does not say that the widgets are missing"
}

contained() {
    # Its installation is that of a package: another folder for libraries, and below DESTDIR.
    configure_consumer add_subdirectory -DLUMENKIT_BY=add_subdirectory -DLUMENKIT_TREE="$top" \
        -DLUMENKIT_INSTALL=ON -DCMAKE_INSTALL_PREFIX=/opt/consumer -DCMAKE_INSTALL_LIBDIR=lib64 \
        -DCMAKE_UNITY_BUILD="${CONSUME_UNITY:-ON}" -DCMAKE_UNITY_BUILD_BATCH_SIZE=0
    build_quietly add_subdirectory
    expect_texts "$work/add_subdirectory/label_texts"
    DESTDIR=$work/staged cmake --install "$work/add_subdirectory" >/dev/null
    [ -s "$work/staged/opt/consumer/lib64/pkgconfig/lumenkit.pc" ] || fail "lib64 has no lumenkit.pc"
    use_pkg_config "$work/staged/opt/consumer"
    check_headers "$work/staged/opt/consumer"

    # Fetched, it is the same project again: nothing of it is compiled for this.
    configure_consumer FetchContent -DLUMENKIT_BY=FetchContent -DLUMENKIT_TREE="$top"
    grep -qx 'LUMENKIT_INSTALL:BOOL=OFF' "$work/FetchContent/CMakeCache.txt" ||
        fail "installs with its parent"
}

configured() {
    local options=()
    grep -qx 'LUMENKIT_QT:BOOL=ON' "$build/CMakeCache.txt" || options=(-DLUMENKIT_QT=OFF)
    configure plain -S "$top" -G "Unix Makefiles" "${options[@]}"
    grep -qx 'CMAKE_BUILD_TYPE:STRING=Release' "$work/plain/CMakeCache.txt" ||
        fail "a plain build is no release build"
    ! grep -q -- -Werror "$work/plain/compile_commands.json" || fail "in a plain build, warnings are errors"

    # Without Qt, it says so, and how to do without.
    if cmake -S "$top" -B "$work/plain" -DLUMENKIT_QT=ON -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON \
        >/dev/null 2>"$work/without_qt.err"; then
        fail "configures for Qt without Qt"
    fi
    grep -q 'Qt6: install qt6-base-dev.* -DLUMENKIT_QT=OFF' "$work/without_qt.err" ||
        fail "does not say what to do without Qt: $(cat "$work/without_qt.err")"
}

rm -rf "$work"
mkdir -p "$work"
python3 "$here/check_options.py" --self-test
found
widgets
contained
configured
echo "installed, moved and used by CMake and by pkg-config; used as a part of another project"
