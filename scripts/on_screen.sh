#!/usr/bin/env bash
# Runs a program on a virtual X display with a window manager, so that windows become active:
#   scripts/on_screen.sh PROGRAM [ARGUMENT...]
set -euo pipefail

if [ "${1:-}" = --inside ]; then
    shift
    openbox --sm-disable >/dev/null 2>&1 &
    manager=$!
    status=0
    "$@" || status=$?
    kill "$manager"
    exit "$status"
fi
export QT_QPA_PLATFORM=xcb
exec xvfb-run --auto-servernum --server-args="-screen 0 1600x1200x24" "$0" --inside "$@"
