#!/usr/bin/env bash
# Edits a form in Qt Designer as its user does, with mouse and keyboard, and compares what Designer
# saves:  edit_form.sh PLUGINS DESIGNER [FOLDER]
# FOLDER: where pictures of Designer are kept. Runs on its own virtual screen.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
plugins=$(cd "$1" && pwd)
designer=$2

fail() {
    echo "edit_form: $*" >&2
    cat "$work/designer.log" >&2
    exit 1
}

# until_true COMMAND [argument...]: tries a command for 30 seconds.
until_true() {
    local try
    for ((try = 0; try < 150; ++try)); do
        kill -0 "$program" 2>/dev/null || fail "Designer has ended"
        ! "$@" || return 0
        sleep 0.2
    done
    return 1
}

# heading_shows: finds the upper left corner of the label, by the colour of its background.
heading_shows() {
    local size
    IFS=x+ read -r size _ left top < <(import -window root png:- |
        convert - +transparent '#FAF0C8' -format '%@\n' info: 2>/dev/null)
    [ "${size:-0}" -gt 100 ] && [ "$size" -lt 400 ]
}

# edit X Y TITLE KEY...: double-clicks there, from the corner of the label, and presses keys in the
# dialog that opens.
edit() {
    local x=$1 y=$2 title=$3
    xdotool mousemove $((left + x)) $((top + y)) click --repeat 2 --delay 60 1
    until_true has_focus "$title" || fail "there is no dialog \"$title\""
    keep_picture "${title// /_}"
    xdotool "${@:4}"
    until_true has_focus 'Qt Designer' || fail "the dialog \"$title\" does not close"
}

# has_focus TITLE: whether the window with the keyboard has a title that begins so.
has_focus() {
    [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == "$1"* ]]
}

keep_picture() {
    [ -z "$pictures" ] || import -window root "$pictures/$1.png"
}

was_saved() {
    cmp -s "$work/order.ui" "$work/expected.ui"
}

on_screen() {
    cp "$here/order.ui" "$work/order.ui"
    # The lines of a memo end with CR LF, also in the file; a reader of XML takes them for LF.
    sed -e 's/>Leave it$/&\r/' -e 's/>|B:1|Your order.*</>|i:1|Your basket</' \
        -e 's/>p;Post|c;Courier|s;Shop</>c;Courier|p;Post|s;Shop</' \
        "$here/order.ui" >"$work/expected.ui"
    # The user's own settings stay out of it.
    export HOME=$work XDG_CONFIG_HOME=$work XDG_RUNTIME_DIR=$work QT_PLUGIN_PATH=$plugins
    "$designer" "$work/order.ui" >"$work/designer.log" 2>&1 &
    program=$!
    until_true heading_shows || fail "Designer does not show the label"

    edit 50 10 'Edit caption' key ctrl+a type --args 1 '|i:1|Your basket' key Tab Return
    edit 250 100 'Edit list' key alt+Down Return
    # A change that is undone.
    edit 50 100 'Edit text' key ctrl+a type 'Ring twice'$'\t'$'\r'
    xdotool key ctrl+z
    keep_picture edited
    xdotool key ctrl+s
    until_true was_saved || {
        diff "$work/expected.ui" "$work/order.ui" >&2 || true
        fail "Designer saved something else"
    }
    kill "$program"
}

if [ "${3:-}" = --inside ]; then
    work=$4 pictures=$5
    on_screen
    exit
fi
pictures=${3:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$here/../../scripts/on_screen.sh" "$0" "$plugins" "$designer" --inside "$work" "$pictures"
echo "edited in Designer: a caption, a list, and a text that was undone"
