#!/usr/bin/env bash
# Fuzzes each target for FUZZ_SECONDS seconds (default 600), starting from its kept corpus. New
# inputs stay in build/fuzz/corpus; a finding stops the run and is left in build/fuzz.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh fuzz
seconds=${FUZZ_SECONDS:-600}
for target in build/fuzz/fuzz/*_fuzz; do
    name=$(basename "$target" _fuzz)
    mkdir -p "build/fuzz/corpus/$name"
    dictionary=()
    [ -f "fuzz/$name.dict" ] && dictionary=("-dict=fuzz/$name.dict")
    echo "== $name, $seconds s"
    "$target" "${dictionary[@]}" "-max_total_time=$seconds" -print_final_stats=1 \
        "-artifact_prefix=build/fuzz/$name-" "build/fuzz/corpus/$name" "fuzz/corpus/$name"
done
