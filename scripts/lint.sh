#!/usr/bin/env bash
# clang-tidy over every source that the native build compiles; headers are seen through them.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh lint
[ -f build/native/compile_commands.json ] || scripts/build.sh native
git ls-files --cached --others --exclude-standard -- \
    'frame/*.cpp' 'vlabel/*.cpp' 'vmemo/*.cpp' 'voptlist/*.cpp' 'vlabelcaption/*.cpp' \
    'runtime/memory/*.cpp' 'forms/*.cpp' 'project/*.cpp' 'apps/*.cpp' |
    xargs -P "$(nproc)" -n 4 clang-tidy -p build/native --quiet --warnings-as-errors='*' \
        2> >(grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -header-filter' >&2)
echo "clang-tidy: clean"
