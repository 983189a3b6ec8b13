#!/usr/bin/env bash
# Regenerates all golden files: the drawings of captions, the pictures of likenesses and the listing
# of the type libraries.
# Review the diff before you commit it.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh screen
scripts/build.sh native write_golden lumenform
build/native/tests/golden/write_golden

lumenform=build/native/apps/lumenform/lumenform
pictures=tests/golden/pictures
for form in likeness_bars likeness_grids likeness_lists likeness_texts tabbed unseen user_controls; do
    "$lumenform" render "samples/forms/$form.frm" -o "$pictures/$form.png"
done
# The part of the designer that shows the icons on the form.
"$lumenform" render samples/forms/unseen.frm --design -o build/unseen_design.png
convert build/unseen_design.png -crop 300x56+182+112 +repage -strip \
    -define png:exclude-chunks=date,time "$pictures/unseen_design.png"

scripts/build.sh mingw-x64 list_type_library lumenkit_tlb
golden=$PWD/tests/golden
(cd build/mingw-x64 &&
    ../../scripts/wine.sh tests/ole/list_type_library.exe lumenkit.tlb lumenkit_runtime.tlb \
        >"$golden/type_library.txt")
git --no-pager diff --stat -- tests/golden
