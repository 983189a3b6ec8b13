#!/usr/bin/env bash
# Installs the Debian packages of the named groups, where they are missing.
#   scripts/setup.sh build bench
set -euo pipefail

# Wine runs programs of the machine's own bitness; the others': scripts/wine-root.sh.
wine=wine64
[ "$(dpkg --print-architecture)" != i386 ] || wine=wine32
declare -A groups=(
    [build]="g++ cmake ninja-build make pkg-config python3 libgtest-dev libgmock-dev libcli11-dev nlohmann-json3-dev libdtl-dev"
    [test]="git pre-commit python3-jsonschema python3-yaml patch"
    [bench]="libbenchmark-dev libpango1.0-dev"
    [format]="clang-format"
    [lint]="clang-tidy libclang-dev llvm"
    [fuzz]="clang libclang-rt-14-dev"
    [compilers]="clang-15 clang-16 clang-19"
    [coverage]="gcovr"
    [analyse]="valgrind cppcheck"
    [shells]="bash-completion zsh fish groff-base man-db"
    [windows]="g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools libwine-dev googletest"
    [wine]="wine $wine fonts-wine fonts-liberation2"
    [wine32]="bubblewrap"
    [qt]="qt6-base-dev qt6-svg-dev breeze-icon-theme qt6-qpa-plugins qt6-tools-dev qt6-l10n-tools qt6-translations-l10n fonts-liberation2 fonts-dejavu-core"
    [designer]="qt6-tools-dev libqt6opengl6-dev designer-qt6"
    [python]="python3-pyqt6 pyqt6-dev pyqt6-dev-tools sip-tools python3-pyqtbuild python3-dev qmake6"
    [abi]="abigail-tools binutils"
    [svg]="librsvg2-bin"
    [package]="dpkg-dev desktop-file-utils shared-mime-info libxml2-utils unzip"
    [screen]="xvfb xauth xdotool imagemagick openbox at-spi2-core dbus-daemon python3-pyatspi"
    [wayland]="weston wl-clipboard qt6-wayland"
    [wayland-client]="qt6-wayland"
)

packages=()
for group in "$@"; do
    packages+=(${groups[$group]:?"no such group: $group"})
done
installed=$(dpkg-query -W -f='${Status} ${Package}\n' "${packages[@]}" 2>/dev/null |
    sed -n 's/^install ok installed //p') || true
missing=()
for package in "${packages[@]}"; do
    grep -Fqx "$package" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing ${missing[*]}" >&2
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
