#!/usr/bin/env bash
# Opens a form with the three controls in the designer of lumenform. Without a display, draws two
# pictures in build/run: the form as its users see it, and the designer with the caption page open.
# The form is a copy and may be edited.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh native lumenform
lumenform=build/native/apps/lumenform/lumenform
mkdir -p build/run
cp samples/forms/order.frm samples/forms/order.frx build/run
form=build/run/order.frm

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    [ -z "${WAYLAND_DISPLAY:-}" ] || scripts/setup.sh wayland-client
    echo "Designing $form. Select the label and press \"Caption…\" to edit what it says; F5 runs the form."
    exec "$lumenform" design "$form"
fi
"$lumenform" render "$form" -o build/run/form.png
"$lumenform" render "$form" -o build/run/designer.png --design --page
echo "There is no display. The form as its users see it is in build/run/form.png,"
echo "the designer with the caption page open in build/run/designer.png."
