#!/usr/bin/env bash
# Checks that a manual page describes every command of the program:  check_manual.sh PROGRAM PAGE
set -euo pipefail

commands=$("$1" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p')
if [ -z "$commands" ]; then
    echo "$1 --help names no commands" >&2
    exit 1
fi
for command in $commands; do
    if ! grep -qx "\.B $command" "$2"; then
        echo "$2 does not tell of \"$command\"" >&2
        exit 1
    fi
done
