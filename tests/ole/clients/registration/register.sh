#!/usr/bin/env bash
# register.sh wine.sh server folder
# Registers the server and keeps in the folder what the registry said before and after. Fails unless
# the server can be found by all that clients look for.
set -euo pipefail
. "$(dirname "$0")/registry.sh"

"$wine" regsvr32 /s /u "Z:$server" || true # what an interrupted run left behind
dump before
"$wine" regsvr32 /s "Z:$server"
dump registered

added=$(comm -13 <(sort "$folder/before.txt") <(sort "$folder/registered.txt"))
demand() {
    [ "$(grep -c -- "$1" <<<"$added")" = "$2" ] || {
        echo "expected $2 of $1 in what registering adds:"
        echo "$added"
        exit 1
    }
}
for name in VLabel VMemo VOptList VLabelCaption; do
    demand "^\[HKEY_CLASSES_ROOT.lumenkit\.$name\]" 1
done
demand '^\[HKEY_CLASSES_ROOT.CLSID.[^\\]*\]' 4
demand '^\[HKEY_CLASSES_ROOT.CLSID.*\\InprocServer32\]' 4
demand '^\[HKEY_CLASSES_ROOT.CLSID.*\\Control\]' 3
demand '^\[HKEY_CLASSES_ROOT.TypeLib.[^\\]*\]' 2
# Four interfaces of the classes, three of events.
demand '^\[HKEY_CLASSES_ROOT.Interface.[^\\]*\]' 7
