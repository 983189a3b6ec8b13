#!/usr/bin/env bash
# Runs the scripts under Wine and compares what they say with expected.txt:
#   scripts/wine.sh --screen samples/scripts/check.sh lumenkit.ocx
# Wine's cscript is silent about errors in scripts; the last line of each shows that it came to its
# end.
set -euo pipefail

server=$1
cd "$(dirname "$0")"
wine regsvr32 /s "$server"
said=$(
    for script in memo.vbs options.vbs label.js; do
        echo "-- $script"
        wine cscript //nologo "$script" | tr -d '\r'
    done
)
wine regsvr32 /s /u "$server"
diff expected.txt <(printf '%s\n' "$said")
echo "samples: the scripts say what they should"
