#!/usr/bin/env bash
# Builds lumenkit.ocx, registers it in a Wine prefix in the build folder and shows its controls in a
# window. Without a display, uses a virtual X display and writes a picture to build/run/ocx.png.
#   scripts/run-ocx.sh [--picture]       --picture: always writes the picture
# LUMENKIT_OCX_BUILD names another build folder than build/mingw-x64; nothing is built then.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${LUMENKIT_OCX_BUILD:-build/mingw-x64}
picture=build/run/ocx.png

managed='HKCU\Software\Wine\AppDefaults\atl_host.exe\X11 Driver'

# Runs inside scripts/wine.sh --screen, which sets the environment for Wine.
take_picture() {
    wine regsvr32 /s "$build/lumenkit.ocx"
    scripts/shoot.sh "$picture" wine "$build/atl_host.exe"
    wine regsvr32 /s /u "$build/lumenkit.ocx"
}

# Restores the prefix: deletes the setting, unregisters the server and ends Wine.
leave_prefix() {
    wine reg delete "$managed" /f >/dev/null 9>&- || true
    wine regsvr32 /s /u "$build/lumenkit.ocx" 9>&- || true
    wineserver -k 9>&- || true
}

show_window() {
    WINEPREFIX=$(scripts/wine.sh --screen --prefix)
    export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LC_ALL=C.UTF-8
    # Wine's desktop belongs to one display, so the prefix is locked while the window is open.
    exec 9>"$WINEPREFIX.lock"
    flock 9
    trap leave_prefix EXIT
    # The window manager of the display draws the window frame.
    wine reg add "$managed" /v Managed /d Y /f >/dev/null 9>&-
    wine regsvr32 /s "$build/lumenkit.ocx" 9>&-
    echo "Showing the controls; close the window to end."
    wine "$build/atl_host.exe" 9>&-
}

if [ "${1:-}" = --inside ]; then
    take_picture
    exit
fi
[ -n "${LUMENKIT_OCX_BUILD:-}" ] || scripts/build.sh mingw-x64 lumenkit_ocx atl_host
mkdir -p build/run
if [ -n "${DISPLAY:-}" ] && [ "${1:-}" != --picture ]; then
    show_window
else
    scripts/wine.sh --screen scripts/run-ocx.sh --inside
    [ -n "${DISPLAY:-}" ] || echo "There is no display."
    echo "The window is in $picture"
fi
