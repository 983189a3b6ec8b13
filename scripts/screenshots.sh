#!/usr/bin/env bash
# Redraws the pictures of the documents. Look at the changed pictures before you commit them.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh screen
scripts/build.sh native lumenform lumenkit
lumenform=build/native/apps/lumenform/lumenform
python3 scripts/draw_captions.py "$lumenform" docs/caption-language.md
build/native/apps/lumenkit/lumenkit compile --svg --font Arial,12 --bullet-prefix '* ' \
    --bullet-indent 300 samples/captions/bullets.txt >docs/images/compiled-caption.svg
for form in docs/images/*.frm; do
    "$lumenform" render "$form" -o "${form%.frm}.png" --scale 2
done

# draw_looks NAME [option...]: draws the form with a light palette, a dark palette and at 200 %.
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
# No date and time in the file, so that equal pictures are equal files.
convert build/run/ocx.png -strip -define png:exclude-chunks=date,time docs/images/lumenkit-ocx.png

git --no-pager diff --stat -- docs
