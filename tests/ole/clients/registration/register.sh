#!/usr/bin/env bash
# register.sh wine.sh server folder
# Registers the server. Fails unless the registry then has all keys that clients look for, and unless
# unregistering removes exactly what registering added.
set -euo pipefail
. "$(dirname "$0")/registry.sh"

"$wine" regsvr32 /s /u "Z:$server" || true # removes the keys of an interrupted run
dump before
"$wine" regsvr32 /s "Z:$server"
dump registered
"$wine" regsvr32 /s /u "Z:$server"
"$wine" regsvr32 /s /u "Z:$server" # a second time, with nothing left to remove
dump after
diff "$folder/before.txt" "$folder/after.txt" || {
    echo "unregistering left something behind, or took too much"
    exit 1
}
"$wine" regsvr32 /s "Z:$server"

comm -13 <(sort "$folder/before.txt") <(sort "$folder/registered.txt") | grep '^\[' >"$folder/keys.txt"
demand() {
    [ "$(grep -ic -- "$1" "$folder/keys.txt")" = "$2" ] || {
        echo "expected $2 of $1 in what registering adds:"
        cat "$folder/keys.txt"
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
# Four interfaces of the classes, and three of their events.
demand '^\[HKEY_CLASSES_ROOT.Interface.[^\\]*\]' 7
