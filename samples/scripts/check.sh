#!/usr/bin/env bash
# Runs the scripts under Wine and compares their output with expected.txt:
#   scripts/wine.sh --screen samples/scripts/check.sh lumenkit.ocx
# Wine's cscript does not report errors in scripts. The last line of output of each script shows that
# the script ran to its end.
set -euo pipefail

server=$1
cd "$(dirname "$0")"
system='C:\windows\system32'
wine "$system\regsvr32.exe" /s "$server"
# One program runs all scripts. Otherwise Wine's own programs end and start again between two of them,
# and under load the next script sometimes does not start.
said=$(wine "$system\cmd.exe" /c \
    "for %s in (memo.vbs options.vbs label.js) do (echo -- %s&cscript //nologo %s)" | tr -d '\r')
wine "$system\regsvr32.exe" /s /u "$server"
diff expected.txt <(printf '%s\n' "$said")
echo "samples: the scripts say what they should"
