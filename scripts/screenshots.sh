#!/usr/bin/env bash
# Draws the pictures of the documents anew. Look at those that the diff names before you keep them.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh screen
scripts/build.sh native lumenform
lumenform=build/native/apps/lumenform/lumenform
python3 scripts/draw_captions.py "$lumenform" docs/caption-language.md
for form in docs/images/*.frm; do
    "$lumenform" render "$form" -o "${form%.frm}.png" --scale 2
done

# Light, dark and at 200 %.
draw_looks() {
    local name=$1
    shift
    "$lumenform" render samples/forms/order.frm -o "docs/images/lumenform-$name.png" "$@"
    "$lumenform" render samples/forms/order.frm -o "docs/images/lumenform-$name-dark.png" --dark "$@"
    "$lumenform" render samples/forms/order.frm -o "docs/images/lumenform-$name-200.png" --scale 2 "$@"
}
draw_looks run
draw_looks design --design
draw_looks caption --design --page
"$lumenform" render -o docs/images/lumenform-start.png --design

scripts/run-ocx.sh --picture >/dev/null
# Without the time at which it was taken, so that the same picture is the same file.
convert build/run/ocx.png -strip -define png:exclude-chunks=date,time docs/images/lumenkit-ocx.png

git --no-pager diff --stat -- docs
