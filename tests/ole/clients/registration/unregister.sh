#!/usr/bin/env bash
# unregister.sh wine.sh server folder
# Unregisters the server and fails if a key is left of those that registering added. Clients may have
# registered things of their own meanwhile.
set -euo pipefail
. "$(dirname "$0")/registry.sh"

"$wine" regsvr32 /s /u "Z:$server"
dump unregistered
! grep -Fxf "$folder/keys.txt" "$folder/unregistered.txt"
