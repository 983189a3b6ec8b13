#!/usr/bin/env bash
# Reformats all sources, or with --check only says which are not formatted.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh format
mode=-i
[ "${1:-}" = --check ] && mode=--dry-run
git ls-files --cached --others --exclude-standard -- '*.h' '*.cpp' |
    xargs clang-format --style=file "$mode" --Werror
