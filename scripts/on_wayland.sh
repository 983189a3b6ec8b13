#!/usr/bin/env bash
# Runs a program in a Wayland session that has a mouse, a keyboard and one screen:
#   scripts/on_wayland.sh [--scale N] PROGRAM [ARGUMENT...]
# The compositor is weston. It shows its screen, of 1280 by 960 pixels with N device pixels each, in
# a window on a virtual X display, and takes the mouse and the keyboard of that display. (Its
# headless backend has no input devices: without them, no client becomes active or sees the
# clipboard.) The program is a client of the compositor. It finds the X display in DISPLAY, where it
# can act as a user with xdotool and take pictures with import. Only local sockets are used.
set -euo pipefail

width=1280
height=960

# Calls a command until it succeeds, for up to 20 seconds.
wait_until() {
    for _ in {1..400}; do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.05
    done
    return 1
}

# Windows appear at once and nothing moves by itself, so that a picture shows a settled screen. Keys
# do not repeat: on a busy machine, a key may stay down for a while. There is no keyboard on the screen.
write_settings() {
    cat <<END
[core]
idle-time=0
[keyboard]
repeat-rate=0
[input-method]
path=
[shell]
panel-position=none
background-color=0xff204060
locking=false
animation=none
startup-animation=none
close-animation=none
END
}

end_session() {
    kill "$compositor" 2>/dev/null || true
    wait "$compositor" || true
    rm -rf "$XDG_RUNTIME_DIR"
}

begin_session() {
    XDG_RUNTIME_DIR=$(mktemp -d)
    export XDG_RUNTIME_DIR WAYLAND_DISPLAY=wayland-test
    local log=$XDG_RUNTIME_DIR/weston.log
    write_settings >"$XDG_RUNTIME_DIR/weston.ini"
    weston --backend=x11-backend.so --use-pixman --socket="$WAYLAND_DISPLAY" \
        --config="$XDG_RUNTIME_DIR/weston.ini" --idle-time=0 \
        --width="$width" --height="$height" --scale="$1" >"$log" 2>&1 &
    compositor=$!
    trap end_session EXIT
    if ! wait_until test -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY" ||
        ! wait_until xdotool search --class weston windowfocus; then
        echo "on_wayland: the compositor does not start" >&2
        cat "$log" >&2
        exit 1
    fi
}

if [ "${1:-}" = --inside ]; then
    begin_session "$2"
    shift 2
    status=0
    QT_QPA_PLATFORM=wayland "$@" || status=$?
    exit "$status"
fi

scale=1
if [ "${1:-}" = --scale ]; then
    scale=$2
    shift 2
fi
exec xvfb-run --auto-servernum \
    --server-args="-screen 0 $((width * scale))x$((height * scale))x24" \
    "$0" --inside "$scale" "$@"
