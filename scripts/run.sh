#!/usr/bin/env bash
# Compiles the sample captions and prints their compiled form.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh native lumenkit
for caption in samples/captions/*.txt; do
    echo "== $caption"
    build/native/apps/lumenkit/lumenkit compile "$caption"
    echo
done
