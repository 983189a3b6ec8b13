#!/usr/bin/env bash
# Fuzzes all targets, or the named ones, for FUZZ_SECONDS seconds each (default 600), one after
# another. Each target starts from its corpus in fuzz/corpus and adds new inputs to
# build/fuzz/corpus. A finding stops the script and is written to build/fuzz. An input that takes
# more than 10 seconds is also a finding.
#   scripts/fuzz.sh [--short] [target...]
# --short: 30 seconds each, two at a time.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${FUZZ_SECONDS:-600}
at_a_time=1
if [ "${1:-}" = --short ]; then
    seconds=${FUZZ_SECONDS:-30}
    at_a_time=2
    shift
fi
targets=("$@")
if [ $# -eq 0 ]; then
    for source in fuzz/*_fuzz.cpp; do
        targets+=("$(basename "$source" _fuzz.cpp)")
    done
fi

scripts/build.sh native-asan "${targets[@]/%/_fuzz}"

# fuzz NAME: runs one target. Its output is in build/fuzz/NAME.log.
fuzz() {
    local name=$1 log=build/fuzz/$1.log dictionary=()
    mkdir -p "build/fuzz/corpus/$name"
    [ -f "fuzz/$name.dict" ] && dictionary=("-dict=fuzz/$name.dict")
    if ! "build/native-asan/fuzz/${name}_fuzz" "${dictionary[@]}" "-max_total_time=$seconds" -timeout=10 \
        -print_final_stats=1 "-artifact_prefix=build/fuzz/$name-" \
        "build/fuzz/corpus/$name" "fuzz/corpus/$name" >"$log" 2>&1; then
        grep -v '^#' "$log"
        echo "== $name: FOUND SOMETHING"
        return 1
    fi
    echo "== $name, $seconds s: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs"
}

running=0
for name in "${targets[@]}"; do
    if [ "$running" -eq "$at_a_time" ]; then
        wait -n
        running=$((running - 1))
    fi
    fuzz "$name" &
    running=$((running + 1))
done
while [ "$running" -gt 0 ]; do
    wait -n
    running=$((running - 1))
done
