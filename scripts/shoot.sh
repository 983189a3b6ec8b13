#!/usr/bin/env bash
# Runs a program that prints "ready" when its window is visible, takes a picture of the screen and
# ends the program:
#   scripts/shoot.sh picture.png program [argument...]
# Cuts off edges of a single colour.
set -euo pipefail

picture=$1
shift
mkdir -p "$(dirname "$picture")"
rm -f "$picture"
coproc "$@"
program=$COPROC_PID
while read -r -t 60 line <&"${COPROC[0]}"; do
    line=${line%$'\r'}
    [ "$line" != ready ] || break
    printf '%s\n' "$line" >&2
done
if [ "${line:-}" != ready ]; then
    echo "shoot: the program never was ready" >&2
    kill "$program" 2>/dev/null || true
    exit 1
fi
sleep 0.5  # until the screen shows the drawing
import -window root "$picture"
convert "$picture" -trim +repage "$picture"
kill "$program" 2>/dev/null || true
