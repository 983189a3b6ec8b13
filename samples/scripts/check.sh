#!/usr/bin/env bash
# Runs the scripts under Wine and compares their output with expected.txt:
#   scripts/wine.sh --screen samples/scripts/check.sh lumenkit.ocx
# Wine's cscript does not report errors in scripts. The last line of output of each script shows that
# the script ran to its end.
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
