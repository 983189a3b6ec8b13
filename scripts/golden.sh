#!/usr/bin/env bash
# Draws the captions of all golden files anew. Review the diff before you keep it.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh native write_golden
build/native/tests/golden/write_golden
git --no-pager diff --stat -- tests/golden
