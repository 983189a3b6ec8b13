#!/usr/bin/env bash
# Checks that a second build of the component server produces the same bytes.
#   scripts/reproducible.sh              repeats resources, type libraries and linking
#   scripts/reproducible.sh --elsewhere  builds the committed sources in another folder (x64 only;
#                                        takes as long as a full build)
set -euo pipefail
cd "$(dirname "$0")/.."

files=(lumenkit.ocx lumenkit.tlb lumenkit_runtime.tlb lumenkit.manifest)

# compare FOLDER FOLDER: fails if the files in the folders differ.
compare() {
    local file
    for file in "${files[@]}"; do
        cmp "$1/$file" "$2/$file"
    done
}

other=$(mktemp -d)
trap 'rm -rf "$other"' EXIT
if [ "${1:-}" = --elsewhere ]; then
    scripts/build.sh mingw-x64 lumenkit_ocx
    git archive HEAD | tar -x -C "$other"
    (cd "$other" && scripts/build.sh mingw-x64 lumenkit_ocx)
    compare build/mingw-x64 "$other/build/mingw-x64"
    echo "built elsewhere: the same"
    exit 0
fi
for preset in mingw-x64 mingw-x86; do
    scripts/build.sh "$preset" lumenkit_ocx
    mkdir "$other/$preset"
    for file in "${files[@]}"; do
        cp "build/$preset/$file" "$other/$preset/"
    done
    rm "build/$preset/lumenkit.ocx" "build/$preset"/*.tlb
    find "build/$preset/server" -name 'lumenkit.rc.*' -delete
    scripts/build.sh "$preset" lumenkit_ocx
    compare "build/$preset" "$other/$preset"
    echo "$preset: the same"
done
