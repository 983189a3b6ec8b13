#!/usr/bin/env bash
# Builds lumenkit.ocx, registers it in a Wine prefix of the build and shows its controls in a window:
# on the display that there is, else on a screen in memory, with a picture in build/run/ocx.png.
#   scripts/run-ocx.sh [--picture]       --picture: in memory, whatever display there is
# LUMENKIT_OCX_BUILD names the build folder, where that is not the preset's.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${LUMENKIT_OCX_BUILD:-build/mingw-x64}
picture=build/run/ocx.png

managed='HKCU\Software\Wine\AppDefaults\atl_host.exe\X11 Driver'

# On a screen in memory, with Wine's settings around it.
take_picture() {
    wine regsvr32 /s "$build/lumenkit.ocx"
    scripts/shoot.sh "$picture" wine "$build/atl_host.exe"
    wine regsvr32 /s /u "$build/lumenkit.ocx"
}

# As it was found.
leave_prefix() {
    wine reg delete "$managed" /f >/dev/null 9>&- || true
    wine regsvr32 /s /u "$build/lumenkit.ocx" 9>&- || true
    wineserver -k 9>&- || true
}

show_window() {
    WINEPREFIX=$(scripts/wine.sh --screen --prefix)
    export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LC_ALL=C.UTF-8
    # Wine's desktop belongs to the display it was started on.
    exec 9>"$WINEPREFIX.lock"
    flock 9
    trap leave_prefix EXIT
    # Here a window manager draws the frame.
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
