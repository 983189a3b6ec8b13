#!/usr/bin/env bash
# Builds the packages in build/package and checks them:
#   scripts/package.sh [debian|windows]      one kind; both by default
set -euo pipefail
cd "$(dirname "$0")/.."

package=$PWD/build/package
version=$(sed -n 's/^project(lumenkit VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

pack() {
    cpack -B "$package" "$@" >"$package/cpack.log" 2>&1 || {
        cat "$package/cpack.log"
        exit 1
    }
    rm -rf "$package/_CPack_Packages" "$package/cpack.log"
}

make_debian() {
    scripts/setup.sh package
    scripts/build.sh native lumenkit lumenform lumenkit_core lumenkit_widgets_shared lumenkit_widgets_static \
        lumenkit_designer
    rm -f "$package"/*.deb "$package"/*.deb.sha256
    pack --config build/native/CPackConfig.cmake
    scripts/check_packages.sh debian "$package"/*.deb
}

make_windows() {
    scripts/setup.sh package
    for preset in mingw-x64 mingw-x86; do
        scripts/build.sh "$preset" lumenkit_ocx atl_host atl_host_free
    done
    rm -f "$package"/*.zip "$package"/*.zip.sha256
    local x64=$PWD/build/mingw-x64 x86=$PWD/build/mingw-x86
    pack --config "$x64/CPackConfig.cmake" \
        -D "CPACK_INSTALL_CMAKE_PROJECTS=$x64;lumenkit;server;/x64;$x86;lumenkit;server;/x86;$x64;lumenkit;server_more;/"
    scripts/check_packages.sh windows "$package/lumenkit-$version-windows.zip"
}

mkdir -p "$package"
case ${1:-both} in
    debian) make_debian ;;
    windows) make_windows ;;
    both)
        make_debian
        make_windows
        ;;
    *)
        sed -n '2,3s/^# \{0,1\}//p' "$0"
        exit 2
        ;;
esac
(cd "$package" && ls -l -- *.deb *.zip 2>/dev/null | awk '{ print $9, $5, "bytes" }')
