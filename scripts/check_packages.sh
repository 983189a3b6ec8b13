#!/usr/bin/env bash
# Unpacks packages in a temporary folder and runs their programs:
#   scripts/check_packages.sh debian FILE.deb...
#   scripts/check_packages.sh windows FILE.zip
set -euo pipefail
cd "$(dirname "$0")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "check_packages: $*" >&2
    exit 1
}

# check_manual FOLDER: each command has a compressed page, and each program its completions.
check_manual() {
    local page program
    for page in lumenkit lumenkit-check lumenkit-compile lumenkit-drive lumenform lumenform-design lumenform-render; do
        gzip -t "$1/man/man1/$page.1.gz" || fail "there is no page for $page"
    done
    for program in lumenkit lumenform; do
        [ -s "$1/bash-completion/completions/$program" ] && [ -s "$1/zsh/vendor-completions/_$program" ] &&
            [ -s "$1/fish/vendor_completions.d/$program.fish" ] || fail "$program has no completions"
    done
}

# check_widgets ROOT: a program is made of the packages of the widgets alone, and Qt Designer loads
# the plugin.
check_widgets() {
    local libraries library plugins
    libraries=$(dirname "$(find "$1" -name 'liblumenkit-widgets.so')")
    library=$libraries/liblumenkit-widgets.so
    [ "$(objdump -p "$library" | awk '/SONAME/ { print $2 }')" = liblumenkit-widgets.so.7 ] ||
        fail "the library has another name"
    [ -z "$(nm "$library" 2>/dev/null)" ] || fail "the library has the symbols of a debugger"
    cmake -S samples/widgets -B "$work/order" -DCMAKE_PREFIX_PATH="$1/usr" >/dev/null
    cmake --build "$work/order" >/dev/null
    QT_QPA_PLATFORM=offscreen "$work/order/order" --print >/dev/null || fail "the program with widgets fails"
    plugins=$(dirname "$(dirname "$(find "$1" -name 'liblumenkit-designer.so')")")
    [ "${plugins#"$1"}" = "$(qmake6 -query QT_INSTALL_PLUGINS)" ] || fail "the plugin is in ${plugins#"$1"}"
    LD_LIBRARY_PATH=$libraries tests/designer/load_plugin.sh "$plugins" \
        "$(qmake6 -query QT_INSTALL_BINS)/designer"
}

# depends FILE.deb PACKAGE...: whether a package depends on others.
depends() {
    local packages package
    packages=$(dpkg-deb -f "$1" Depends)
    for package in "${@:2}"; do
        grep -qF -- "$package" <<<"$packages" || fail "$1 does not depend on $package: $packages"
    done
}

check_debian() {
    local root=$work/root deb
    for deb in "$@"; do
        dpkg-deb -x "$deb" "$root"
        [ "$(dpkg-deb -c "$deb" | awk '{ print $2 }' | sort -u)" = root/root ] ||
            fail "$deb holds files that are not root's"
    done
    local bin=$root/usr/bin share=$root/usr/share
    echo '|B:1|Note:' | "$bin/lumenkit" compile | grep -qF 'b = "1"' || fail "lumenkit does not compile"
    "$bin/lumenform" render samples/forms/all_three.frm -o "$work/form.png"
    [ -s "$work/form.png" ] || fail "lumenform draws nothing"
    check_manual "$share"
    [ -z "$(dpkg-deb -f "$(printf '%s\n' "$@" | grep /lumenkit_)" Depends | grep -i qt)" ] ||
        fail "the command line depends on Qt"
    local version
    version=$(sed -n 's/^project(lumenkit VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
    for deb in "$@"; do
        case ${deb##*/} in
            liblumenkit-widgets7_*)
                depends "$deb" libqt6widgets6
                [ "$(dpkg-deb -I "$deb" shlibs)" = "liblumenkit-widgets 7 liblumenkit-widgets7 (>= $version)" ] ||
                    fail "$deb does not tell which programs need it"
                [[ $(dpkg-deb -I "$deb" postinst) = *ldconfig* ]] || fail "$deb leaves the loader as it was"
                ;;
            liblumenkit-widgets-dev_*)
                depends "$deb" "liblumenkit-widgets7 (= $version)" "liblumenkit-dev (= $version)" qt6-base-dev
                ;;
            lumenkit-designer_*) depends "$deb" "liblumenkit-widgets7 (= $version)" libqt6designer6 ;;
        esac
    done
    check_widgets "$root"
    desktop-file-validate "$share/applications/lumenform.desktop"
    # Files that end in .frm have the MIME type of forms.
    update-mime-database "$share/mime" 2>"$work/mime.log" || fail "$(cat "$work/mime.log")"
    grep -qF 'application/x-lumenkit-form:*.frm' "$share/mime/globs" || fail ".frm has no type"
    xmllint --noout "$share/icons/hicolor/scalable/apps/lumenform.svg"
    echo "Debian packages: unpacked and run"
}

wine_bits() { # x64 or x86
    [ "$1" = x86 ] && echo 32 || echo 64
}

check_windows() {
    unzip -q "$1" -d "$work"
    local files=$work/${1##*/} bits
    files=${files%.zip}
    for bits in x64 x86; do
        for file in lumenkit.ocx lumenkit.manifest lumenkit.tlb lumenkit_runtime.tlb atl_host.exe atl_host_free.exe; do
            [ -s "$files/$bits/$file" ] || fail "$bits/$file is not there"
        done
        cmp "$files/$bits/lumenkit.ocx" "build/mingw-$bits/lumenkit.ocx"
        # The program finds the controls beside it: nothing is registered in this prefix.
        LUMENKIT_WINE_BITS=$(wine_bits "$bits") scripts/wine.sh --screen \
            scripts/shoot.sh "$work/$bits.png" wine "$files/$bits/atl_host_free.exe"
        [ -s "$work/$bits.png" ] || fail "$bits/atl_host_free.exe shows nothing"
    done
    [ -s "$files/README.md" ] && [ -s "$files/LICENSE" ] || fail "there is no README or LICENSE"
    [ -s "$files/include/lumenkit.h" ] || fail "there is no header"
    # Registers the server and runs the scripts of the archive.
    cp samples/scripts/check.sh samples/scripts/expected.txt "$files/samples/scripts/"
    for bits in x64 x86; do
        LUMENKIT_WINE_BITS=$(wine_bits "$bits") scripts/wine.sh --screen \
            "$files/samples/scripts/check.sh" "$files/$bits/lumenkit.ocx"
    done
    echo "Windows archive: unpacked and run under Wine"
}

kind=${1:-}
[ $# -eq 0 ] || shift
case $kind in
    debian) check_debian "$@" ;;
    windows) check_windows "$@" ;;
    *)
        sed -n '2,4s/^# \{0,1\}//p' "$0"
        exit 2
        ;;
esac
