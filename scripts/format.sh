#!/usr/bin/env bash
# Reformats all sources. With --check, lists the sources that are not formatted and fails if any.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh format
mode=-i
[ "${1:-}" = --check ] && mode=--dry-run
git ls-files --cached --others --exclude-standard -- '*.h' '*.cpp' |
    xargs clang-format --style=file "$mode" --Werror
