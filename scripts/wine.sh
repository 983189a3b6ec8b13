#!/usr/bin/env bash
# Runs a Windows program under Wine and returns its exit code:
#   scripts/wine.sh program.exe [argument...]            without a screen
#   scripts/wine.sh --screen [command...]                on a screen of its own (Xvfb)
#   scripts/wine.sh --prefix                             prints the prefix, made if need be
#   scripts/wine.sh --end                                ends what Wine left running
# The Wine prefixes are made at first use, in build/. LUMENKIT_WINE_PREFIX names another folder for
# the one in use; LUMENKIT_WINE_SECONDS limits how long a program may run (default 300).
# --screen with a file that ends in .exe runs that; anything else is run as a Linux command that
# finds Wine's settings and DISPLAY in its environment.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)

screen=
if [ "${1:-}" = --screen ]; then
    screen=yes
    shift
fi
prefix=${LUMENKIT_WINE_PREFIX:-$top/build/wine-prefix${screen:+-screen}}
seconds=${LUMENKIT_WINE_SECONDS:-300}
export WINEPREFIX=$prefix WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree,mshtml=" LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY

# Programs and Wine's server take turns. On one processor none has to be woken for that, which takes
# times as long as what they do.
processor=$(taskset -cp $$ | sed 's/.*[ ,-]//')
taskset -cp "$processor" $$ >/dev/null

end_wine() {
    # Only the server of this prefix; it ends all programs that run in it.
    wineserver -k || true
    wineserver -w
}

settings() {
    cat <<'EOF'
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Arial"="Liberation Sans"
"Courier New"="Liberation Mono"
"Times New Roman"="Liberation Serif"

EOF
    if [ -z "$screen" ]; then
        # Windows live in memory only.
        printf '[HKEY_CURRENT_USER\\Software\\Wine\\Drivers]\n"Graphics"="null"\n'
    else
        # Captions and borders are drawn without a window manager.
        printf '[HKEY_CURRENT_USER\\Software\\Wine\\Drivers]\n"Graphics"="x11"\n\n'
        printf '[HKEY_CURRENT_USER\\Software\\Wine\\X11 Driver]\n"Managed"="N"\n'
    fi
}

# Not by halves: errors do not end a function whose result is asked for.
make_prefix() {
    local quiet=(xvfb-run -a)
    [ -n "$screen" ] || quiet=()
    [ ! -d "$prefix" ] || end_wine
    rm -rf "$prefix"
    mkdir -p "$prefix" &&
        "${quiet[@]}" timeout 240 wine wineboot --init &&
        cp /usr/share/wine/fonts/* "$prefix/drive_c/windows/Fonts/" &&
        settings >"$prefix/settings.reg" &&
        "${quiet[@]}" timeout 120 wine regedit /S "$prefix/settings.reg" &&
        end_wine
}

# Made by one, awaited by the others. A prefix that was made differently is made anew.
ready=$prefix/made-by-$(declare -f settings make_prefix | sha256sum | cut -c1-16)
ensure_prefix() {
    [ -e "$ready" ] && return
    "$top/scripts/setup.sh" wine ${screen:+screen}
    mkdir -p "$(dirname "$prefix")"
    exec 9>"$prefix.lock"
    flock 9
    if [ ! -e "$ready" ]; then
        make_prefix 9>&- </dev/null >"$prefix.log" 2>&1 || {
            cat "$prefix.log"
            exit 1
        }
        touch "$ready"
    fi
    exec 9>&-
}

run_on_screen() {
    # One screen at a time: Wine's desktop belongs to the display it was started on.
    exec 9>"$prefix.lock"
    flock 9
    local command=("$@")
    case $1 in *.exe) command=(wine "$@") ;; esac
    # Wine ends before its screen does.
    xvfb-run -a -s "-screen 0 1280x1024x24" bash -c '
        seconds=$1
        shift
        timeout --kill-after=10 "$seconds" "$@"
        status=$?
        wineserver -k
        wineserver -w
        exit "$status"' run_on_screen "$seconds" "${command[@]}" 9>&-
}

case ${1:-} in
    --end)
        [ ! -d "$prefix" ] || end_wine
        ;;
    --prefix)
        ensure_prefix
        echo "$prefix"
        ;;
    "" | -*)
        sed -n '2,10s/^# \{0,1\}//p' "$0"
        exit 2
        ;;
    *)
        ensure_prefix
        if [ -n "$screen" ]; then
            run_on_screen "$@"
        else
            exec timeout --kill-after=10 "$seconds" wine "$@"
        fi
        ;;
esac
