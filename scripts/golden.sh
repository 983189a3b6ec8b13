#!/usr/bin/env bash
# Regenerates all golden files: the drawings of captions and the listing of the type libraries.
# Review the diff before you commit it.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh native write_golden
build/native/tests/golden/write_golden

scripts/build.sh mingw-x64 list_type_library lumenkit_tlb
golden=$PWD/tests/golden
(cd build/mingw-x64 &&
    ../../scripts/wine.sh tests/ole/list_type_library.exe lumenkit.tlb lumenkit_runtime.tlb \
        >"$golden/type_library.txt")
git --no-pager diff --stat -- tests/golden
