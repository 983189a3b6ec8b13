#!/usr/bin/env bash
# Regenerates the files made from the interface tables. Review the diff before you commit it.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh native write_published
build/native/project/published/write_published project/published docs/reference
git --no-pager diff --stat -- project/published docs/reference
