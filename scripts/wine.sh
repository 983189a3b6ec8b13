#!/usr/bin/env bash
# Runs a Windows program under Wine and returns its exit code:
#   scripts/wine.sh program.exe [argument...]            without a screen
#   scripts/wine.sh --screen [command...]                on a screen of its own (Xvfb)
#   scripts/wine.sh --prefix                             prints the prefix, made if need be
#   scripts/wine.sh --end                                ends what Wine left running
# A file that is a program runs in Wine of its own bitness. LUMENKIT_WINE_BITS=32 asks for 32 bits
# where no file tells: for programs of Wine, Linux commands and the prefix (default 64).
# The Wine prefixes are made at first use, in build/. LUMENKIT_WINE_PREFIX names another folder for
# the one in use; LUMENKIT_WINE_SECONDS limits how long a program may run (default 900).
# --screen with a file that ends in .exe runs that; anything else is run as a Linux command that
# finds Wine's settings and DISPLAY in its environment.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)

screen=
if [ "${1:-}" = --screen ]; then
    screen=yes
    shift
fi

number_at() { # file offset bytes
    od -An -v -t "u$3" -j "$2" -N "$3" "$1" | tr -d ' '
}

# The bits of a program: its header tells the machine that it is for.
bits_of() {
    local header
    header=$(number_at "$1" 60 4)
    case $(number_at "$1" $((header + 4)) 2) in
        332) echo 32 ;;
        34404) echo 64 ;;
        *) echo "wine.sh: $1 is no program for x86 or x64" >&2 && return 1 ;;
    esac
}

bits=${LUMENKIT_WINE_BITS:-64}
case ${1:-} in
    *.exe) [ ! -f "$1" ] || bits=$(bits_of "$1") ;;
esac
machine=$(dpkg --print-architecture)
case $bits-$machine in
    32-i386 | 64-amd64) ;;
    # The commands wine and wineserver are then those of the other bitness.
    32-amd64) export PATH=$top/scripts/wine32:$PATH ;;
    *)
        echo "wine.sh: $bits-bit programs for Windows do not run on $machine" >&2
        exit 1
        ;;
esac
# By bits.
declare -A prefixes=(
    [64]=$top/build/wine-prefix${screen:+-screen}
    [32]=$top/build/wine-prefix-32${screen:+-screen}
)
prefix=${LUMENKIT_WINE_PREFIX:-${prefixes[$bits]}}
seconds=${LUMENKIT_WINE_SECONDS:-900}
export LUMENKIT_WINE_BITS=$bits WINEPREFIX=$prefix WINEARCH=win$bits WINEDEBUG=${WINEDEBUG:--all}
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

# A server also ends those of the other bitness.
end_all() {
    local folder
    for folder in "${LUMENKIT_WINE_PREFIX:-${prefixes[64]}}" "${prefixes[32]}"; do
        [ ! -d "$folder" ] || WINEPREFIX=$folder end_wine
    done
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

# Commands are joined by &&: in a function whose status is tested, set -e has no effect.
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
    "$top/scripts/setup.sh" wine ${screen:+screen}
    [ "$bits-$machine" != 32-amd64 ] || "$top/scripts/wine-root.sh" --make >/dev/null
    [ ! -e "$ready" ] || return 0
    mkdir -p "$(dirname "$prefix")"
    exec 9>"$prefix.lock"
    flock 9
    if [ ! -e "$ready" ]; then
        make_prefix 9>&- </dev/null >"$prefix.log" 2>&1 || {
            cat "$prefix.log" >&2
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
        end_all
        ;;
    --prefix)
        ensure_prefix
        echo "$prefix"
        ;;
    "" | -*)
        sed -n '2,12s/^# \{0,1\}//p' "$0"
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
